// SPDX-License-Identifier: MIT
// The places that a request adds to the sidebar are there while its dialog is,
// and never reach the user's settings, however the dialog ends.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VySidebarPlaces.h"

#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

#include <stdexcept>

namespace {

QStringList savedPlaces()
{
    QSettings settings(QSettings::UserScope, QStringLiteral("QtProject"));
    return settings.value(QStringLiteral("FileDialog/shortcuts")).toStringList();
}

QUrl urlOf(const QString& folder)
{
    return QUrl(QStringLiteral("file://") + folder);
}

} // namespace

class SidebarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { const QFileDialog once; } // Qt reads its settings only when complete
    void init();

    void addsThePlaces();
    void addsTheEmptyStartFolder();
    void neverPersists_data();
    void neverPersists();
    void neverPersistsAfterAnException();
    void neverPersistsWhenTheParentGoes();
    void keepsTheUsersOwnPlaces();
    void keepsAnEmptySidebar();

private:
    DrawingFolder m_mine;
    DrawingFolder m_start;
};

void SidebarTest::init()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    QSettings settings(QSettings::UserScope, QStringLiteral("QtProject"));
    settings.setValue(QStringLiteral("FileDialog/shortcuts"),
                      QStringList{QStringLiteral("file:"), urlOf(m_mine.path()).toString()});
    settings.setValue(QStringLiteral("FileDialog/viewMode"), QStringLiteral("List"));
}

void SidebarTest::addsThePlaces()
{
    const QString documents =
        QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).constFirst();
    HostRequest request;
    request.start = m_start.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        const QList<QUrl> urls = dialog.sidebarUrls();
        QCOMPARE(urls.at(1), urlOf(m_mine.path()));
        QCOMPARE(urls.at(2), urlOf(m_start.path()));
        QVERIFY(urls.contains(urlOf(documents)));
        for (const QUrl& place : VySidebarPlaces::urls(m_start.path()))
            QVERIFY2(urls.contains(QUrl::fromLocalFile(place.toLocalFile())),
                     qPrintable(place.toString()));
        dialog.reject();
    })});
}

void SidebarTest::addsTheEmptyStartFolder()
{
    QCOMPARE(VySidebarPlaces::urls(QString()).constFirst(), QUrl(QStringLiteral("file://")));
    HostRequest request;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(dialog.sidebarUrls().contains(urlOf(m_mine.path())));
        dialog.reject();
    })});
}

void SidebarTest::neverPersists_data()
{
    QTest::addColumn<DialogDriver::Step>("end");
    QTest::newRow("accepted") << onFileDialog([](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "plan.dwg"));
        typeAndAccept(dialog, "plan.dwg");
    });
    QTest::newRow("cancelled") << onFileDialog([](QFileDialog& dialog) { dialog.reject(); });
    QTest::newRow("window closed") << onFileDialog([](QFileDialog& dialog) { dialog.close(); });
    QTest::newRow("hidden") << onFileDialog([](QFileDialog& dialog) { dialog.hide(); });
    QTest::newRow("deleted") << onFileDialog([](QFileDialog& dialog) { delete &dialog; });
}

void SidebarTest::neverPersists()
{
    QFETCH(DialogDriver::Step, end);
    const QStringList before = savedPlaces();
    m_start.addFile("plan.dwg");
    HostRequest request;
    request.start = m_start.path();
    request.getFileName({end});
    QCOMPARE(savedPlaces(), before);
}

void SidebarTest::neverPersistsAfterAnException()
{
    const QStringList before = savedPlaces();
    HostRequest request;
    request.start = m_start.path();
    const auto throwing = [](QDialog&) { throw std::runtime_error("host"); };
    QVERIFY_EXCEPTION_THROWN(request.getFileName({throwing}), std::runtime_error);
    QCOMPARE(savedPlaces(), before);
    QVERIFY(!QApplication::activeModalWidget());
    request.getFileName({onFileDialog([](QFileDialog& dialog) { dialog.reject(); })});
    QCOMPARE(request.status, VyStatus::Cancelled);
}

void SidebarTest::neverPersistsWhenTheParentGoes()
{
    const QStringList before = savedPlaces();
    auto* window = new QWidget;
    window->show();
    HostRequest request;
    request.start = m_start.path();
    request.parent = window->winId();
    request.getFileName({onFileDialog([&](QFileDialog&) { delete window; })});
    QCOMPARE(request.status, VyStatus::Cancelled);
    QCOMPARE(savedPlaces(), before);
}

void SidebarTest::keepsTheUsersOwnPlaces()
{
    HostRequest().getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(dialog.sidebarUrls().contains(urlOf(m_mine.path())));
        dialog.reject();
    })});
    QVERIFY(savedPlaces().contains(urlOf(m_mine.path()).toString()));
}

void SidebarTest::keepsAnEmptySidebar()
{
    QSettings(QSettings::UserScope, QStringLiteral("QtProject"))
        .setValue(QStringLiteral("FileDialog/shortcuts"), QStringList());
    HostRequest().getFileName({onFileDialog([](QFileDialog& dialog) { dialog.reject(); })});
    QCOMPARE(savedPlaces(), QStringList());
}

int main(int argc, char** argv)
{
    // An exception cannot pass the event loop of another library, only Qt's own.
    qputenv("QT_NO_GLIB", "1");
    QApplication application(argc, argv);
    SidebarTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "SidebarTest.moc"
