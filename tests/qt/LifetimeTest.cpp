// SPDX-License-Identifier: MIT
// What a request leaves behind in its host: nothing.
#include "DrawingFolder.h"
#include "Holdings.h"
#include "HostRequest.h"
#include "VyDocument.h"

#include <QDir>
#include <QPixmapCache>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace {

void expectNoMore(const Holdings& now, const Holdings& before)
{
    QVERIFY2(now.objects <= before.objects, qPrintable(QString::number(now.objects)));
    QVERIFY2(now.widgets <= before.widgets, qPrintable(QString::number(now.widgets)));
    QVERIFY2(now.windows <= before.windows, qPrintable(QString::number(now.windows)));
    QVERIFY2(now.descriptors <= before.descriptors, qPrintable(QString::number(now.descriptors)));
    QVERIFY2(now.threads <= before.threads, qPrintable(QString::number(now.threads)));
    // In KiB, after a thousand requests: some of Qt's lists are longer now, some shorter.
    constexpr double few = 16;
    QVERIFY2(now.heap <= before.heap + few, qPrintable(QString::number(now.heap - before.heap)));
}

} // namespace

class LifetimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void thousandRequests();
    void restoresTheViewsCursor_data();
    void restoresTheViewsCursor();
    void survivesTheDocument();
    void anotherDocumentGetsTheCursor();
    void hostWindowIsLockedMeanwhile();
    void requestInsideARequest();
    void survivesItsParent_data();
    void survivesItsParent();
    void refusesWithoutItsThread();

private:
    void request(int number);

    DrawingFolder m_folder;
};

void LifetimeTest::initTestCase()
{
    Holdings::countObjects();
    // It grows up to a limit, whoever shows what, and would hide what grows without one.
    QPixmapCache::setCacheLimit(0);
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    m_folder.addPicture("red.png", QSize(40, 30), Qt::red);
}

// Every kind, modes on and off, accepted and cancelled in turn.
void LifetimeTest::request(int number)
{
    HostRequest request;
    request.type = QVector<unsigned>{0x1, 0x2, 0x4, 0x102}.at(number % 4);
    request.flags = static_cast<unsigned>(number / 4) % 2;
    request.filter = QStringLiteral("All files&*");
    request.start = m_folder.filePath(request.type == 4 ? QStringLiteral("new.png")
                                                        : QStringLiteral("red.png"));
    const bool accept = (number / 8) % 2;
    const auto step = [accept](QDialog& dialog) {
        accept ? dialog.done(QDialog::Accepted) : dialog.reject();
    };
    number % 3 ? request.getFileName({step}) : request.getFileNames({step});
    QCOMPARE(request.status == VyStatus::Cancelled, !accept);
}

void LifetimeTest::thousandRequests()
{
    for (int i = 0; i < 48; ++i) // every combination once: what Qt keeps, it keeps from then on
        request(i);
    Holdings::settle();
    const Holdings before;
    for (int i = 0; i < 1000 && !QTest::currentTestFailed(); ++i)
        request(i);
    Holdings::settle();
    expectNoMore(Holdings(), before);
}

void LifetimeTest::restoresTheViewsCursor_data()
{
    QTest::addColumn<bool>("accept");
    QTest::newRow("accepted") << true;
    QTest::newRow("cancelled") << false;
}

void LifetimeTest::restoresTheViewsCursor()
{
    QFETCH(bool, accept);
    QWidget view;
    view.setCursor(Qt::CrossCursor);
    CVyDocument document(&view);
    VySetActiveDocument(&document);
    HostRequest().getFileName({[&](QDialog& dialog) {
        QCOMPARE(view.cursor().shape(), Qt::ArrowCursor);
        dialog.done(accept);
    }});
    QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
}

void LifetimeTest::survivesTheDocument()
{
    QCOMPARE(ACTIVE_DOCUMENT(), nullptr);
    auto* view = new QWidget;
    auto* document = new CVyDocument(view);
    VySetActiveDocument(document);
    HostRequest().getFileName({[&](QDialog& dialog) {
        delete view;
        delete document;
        dialog.reject();
    }});
    QCOMPARE(ACTIVE_DOCUMENT(), nullptr);
}

void LifetimeTest::anotherDocumentGetsTheCursor()
{
    QWidget first;
    QWidget second;
    first.setCursor(Qt::CrossCursor);
    second.setCursor(Qt::WaitCursor);
    CVyDocument firstDocument(&first);
    CVyDocument secondDocument(&second);
    VySetActiveDocument(&firstDocument);
    HostRequest().getFileName({[&](QDialog& dialog) {
        VySetActiveDocument(&secondDocument);
        dialog.reject();
    }});
    QCOMPARE(first.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(second.cursor().shape(), Qt::CrossCursor);
}

void LifetimeTest::hostWindowIsLockedMeanwhile()
{
    QPushButton hostButton;
    QSignalSpy clicks(&hostButton, SIGNAL(clicked()));
    hostButton.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hostButton));
    const auto use = [&] {
        QTest::mouseClick(hostButton.windowHandle(), Qt::LeftButton);
        QTest::mouseClick(&hostButton, Qt::LeftButton);
        QTest::keyClick(&hostButton, Qt::Key_Space);
    };
    HostRequest().getFileName({[&](QDialog& dialog) {
        use();
        hostButton.close();
        dialog.reject();
    }});
    QVERIFY(hostButton.isVisible());
    QCOMPARE(clicks.size(), 0);
    use();
    QCOMPARE(clicks.size(), 3);
}

void LifetimeTest::requestInsideARequest()
{
    HostRequest inner;
    HostRequest outer;
    outer.getFileName({[&](QDialog& dialog) {
        inner.type = CVyUserIO::FileNameSave;
        inner.start = m_folder.filePath("inner.dwg");
        inner.withTypeIndex = false;
        inner.getFileName({[](QDialog& second) { second.done(QDialog::Accepted); }});
        QVERIFY(dialog.isVisible());
        dialog.reject();
    }});
    QCOMPARE(inner.status, VyStatus::Accepted);
    QCOMPARE(inner.paths, QStringList{m_folder.filePath("inner.dwg")});
    QCOMPARE(outer.status, VyStatus::Cancelled);
}

void LifetimeTest::survivesItsParent_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("typed"); // leads to a question of QFileDialog's own
    QTest::addColumn<bool>("grandparent");
    QTest::newRow("dialog alone") << 0x2U << QString() << false;
    QTest::newRow("asked whether to overwrite") << 0x4U << "red.png" << false;
    QTest::newRow("told that a file is missing") << 0x2U << "gone.png" << false;
    QTest::newRow("parent of the parent goes") << 0x4U << "red.png" << true;
}

void LifetimeTest::survivesItsParent()
{
    QFETCH(unsigned, type);
    QFETCH(QString, typed);
    QFETCH(bool, grandparent);
    auto* window = new QWidget;
    auto* child = new QWidget(window);
    child->winId();
    window->show();
    HostRequest request;
    request.type = type;
    request.filter = QStringLiteral("All files&*");
    request.start = m_folder.path();
    request.parent = grandparent ? child->winId() : window->winId();
    const auto deleteWindow = [&](QDialog&) { delete window; };
    std::vector<DialogDriver::Step> steps;
    if (!typed.isEmpty())
        steps.push_back(onFileDialog([&](QFileDialog& dialog) { typeAndAccept(dialog, typed); }));
    steps.push_back(deleteWindow);
    request.getFileName(steps);
    QCOMPARE(request.status, VyStatus::Cancelled);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(request.paths.isEmpty());
}

void LifetimeTest::refusesWithoutItsThread()
{
    int status = 0;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        CVyString path;
        const CVyString text;
        status =
            CVyFileDialog::GetFileName(nullptr, &path, 0, CVyUserIO::FileNameOpen, text, text, text,
                                       text, nullptr, nullptr, CVyUserIO::FileNameNoFlags, nullptr);
    }));
    thread->start();
    QVERIFY(thread->wait(5000));
    QCOMPARE(status, VyStatus::Failed);
}

QTEST_MAIN(LifetimeTest)
#include "LifetimeTest.moc"
