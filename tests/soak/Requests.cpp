// SPDX-License-Identifier: MIT
#include "Requests.h"

#include <QtTest>

SoakFolder::SoakFolder()
{
    addPicture("red.png", QSize(40, 30), Qt::red);
    addPicture("blue.png", QSize(40, 30), Qt::blue);
    addPicture("green.png", QSize(40, 30), Qt::green);
    addFile("broken.png");
    addFolder("parts");
    addFile("parts/door.dwg");
}

HostRequest anyRequest(const SoakFolder& folder, Chance& chance)
{
    HostRequest request;
    request.filter = QStringLiteral("Pictures&*.png&Drawings&*.dwg;*.dxf&All files&*.*");
    request.type = oneOf(
        QVector<unsigned>{CVyUserIO::FileNameNew, CVyUserIO::FileNameOpen, CVyUserIO::FileNameSave},
        chance);
    request.flags = oneOf(
        QVector<unsigned>{CVyUserIO::FileNameNoFlags, CVyUserIO::FileNameModeChoices}, chance);
    request.start = oneOf(QStringList{folder.path(), folder.filePath("red.png")}, chance);
    return request;
}

QString judged(const HostRequest& request, bool several, const char* ending, bool accepted)
{
    if (request.status != (accepted ? VyStatus::Accepted : VyStatus::Cancelled))
        QTest::qFail(qPrintable(QString::number(request.status)), __FILE__, __LINE__);
    return QStringLiteral("type %1, flags %2, %3, from %4, %5")
        .arg(request.type)
        .arg(request.flags)
        .arg(several ? "several" : "one", request.start, ending);
}
