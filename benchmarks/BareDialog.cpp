// SPDX-License-Identifier: MIT
// A program of Qt alone that asks for a drawing: the floor for whole processes.
#include "support/DrawingRequest.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QString path = askFloor(drawingRequest());
    std::puts(qPrintable(path));
    return path.isEmpty() ? 1 : 0;
}
