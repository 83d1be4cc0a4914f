// SPDX-License-Identifier: MIT
// What the row of folder buttons costs when a deep folder is shown: making its
// buttons and laying them out.
#include "support/Measurement.h"

#include "VyFileDialogQt.h"
#include "VyFileDialogWidget.h"

#include <QApplication>
#include <QLayout>

namespace {

// Two paths that have nothing but the root in common: no button stays.
QString path(int depth, int which)
{
    QString result;
    for (int i = 1; i < depth; ++i)
        result += QStringLiteral("/Project %1-%2").arg(which).arg(i);
    return result;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side", QStringLiteral("subject")).toUtf8();
    const int depth = Measurement::number("depth", 5);
    CVyFileDialogQtOpen owner(true, false, false, true, false);
    CVyString title;
    CVyString folder(QDir::rootPath());
    CVyString filter;
    CVyFileDialogWidget dialog(nullptr, &owner, title, folder, filter, true);
    dialog.show();
    QCoreApplication::processEvents();
    for (int i = 0; i < Measurement::number("rounds", 30); ++i) {
        const QString shown = path(depth, i % 2);
        const double start = Measurement::work();
        dialog.layoutDirSelector(shown);
        const double made = Measurement::work() - start;
        dialog.layout()->activate();
        const double laidOut = Measurement::work() - start;
        QCoreApplication::processEvents();
        Measurement::report(side, "made", made);
        Measurement::report(side, "made, each folder", made / depth * 1000);
        Measurement::report(side, "and laid out", laidOut);
        Measurement::report(side, "and painted", Measurement::work() - start);
    }
}
