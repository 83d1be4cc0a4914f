// SPDX-License-Identifier: MIT
#include "Holdings.h"

#include "Heap.h"

#include <QApplication>
#include <QDir>
#include <QtTest>

#include <atomic>

// QtCore's table of debugging hooks (qhooks_p.h): 0 version of the table,
// 3 called for every QObject made, 4 for every QObject deleted.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace {

std::atomic<int> s_objects = 0;

// None where the system does not tell in this way.
int entries(const char* folder)
{
    return QDir(QString::fromLatin1(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

} // namespace

void Holdings::countObjects()
{
    if (qtHookData[0] < 1)
        qFatal("Qt does not tell of its objects");
    qtHookData[3] = reinterpret_cast<quintptr>(+[](QObject*) { ++s_objects; });
    qtHookData[4] = reinterpret_cast<quintptr>(+[](QObject*) { --s_objects; });
}

void Holdings::settle()
{
    QTest::qWait(100);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Holdings::Holdings()
    : objects(s_objects)
    , widgets(QApplication::allWidgets().size())
    , windows(QGuiApplication::allWindows().size())
    , descriptors(entries("/proc/self/fd"))
    , threads(entries("/proc/self/task"))
    , heap(heapInUse())
{}
