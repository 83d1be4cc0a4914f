// SPDX-License-Identifier: MIT
// What the row of folder buttons costs: the work that its layouts do is counted,
// which time follows.
#include "AllocationCount.h"
#include "DrawingFolder.h"
#include "FolderButtons.h"
#include "HostRequest.h"

#include <QtTest>

namespace {

// What happens to the buttons, and how often the whole dialog is laid out.
struct Work : QObject
{
    int fonts = 0;
    int resizes = 0;
    int moves = 0;
    int toolTips = 0;
    int layouts = 0;
    int blocks = 0;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        layouts += event->type() == QEvent::LayoutRequest && receiver->inherits("QFileDialog");
        if (receiver->objectName() == QLatin1String("folderButton")) {
            fonts += event->type() == QEvent::FontChange;
            resizes += event->type() == QEvent::Resize;
            moves += event->type() == QEvent::Move;
            toolTips += event->type() == QEvent::ToolTipChange;
        }
        return false;
    }
};

// A layout may ask for another one.
void layOut()
{
    for (int round = 0; round < 4; ++round)
        QApplication::sendPostedEvents();
}

// The same without painting, whose cost is the style's.
void layOutUnpainted()
{
    for (int round = 0; round < 4; ++round) {
        QApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
}

template <typename Action>
std::unique_ptr<Work> workOf(Action action)
{
    auto work = std::make_unique<Work>();
    qApp->installEventFilter(work.get());
    const AllocationCount::Taken taken = AllocationCount::during([&] {
        action();
        layOutUnpainted();
    });
    qApp->removeEventFilter(work.get());
    layOut();
    work->blocks = static_cast<int>(taken.blocks);
    return work;
}

// A path with that many folders, the root among them.
QString pathOf(int depth, const QString& last)
{
    QString path;
    for (int i = 2; i < depth; ++i)
        path += QStringLiteral("/f%1").arg(i);
    return path + QLatin1Char('/') + last;
}

// The row follows what the dialog announces, whether or not there is such a folder.
void goTo(QFileDialog& dialog, const QString& path)
{
    Q_EMIT dialog.directoryEntered(path);
}

void withDialog(const std::function<void(QFileDialog&)>& work)
{
    const DrawingFolder folder;
    HostRequest request;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        layOut();
        work(dialog);
        dialog.reject();
    })});
}

#define VERIFY_AT_MOST(value, most)                                                                \
    QVERIFY2((value) <= (most), qPrintable(QStringLiteral("%1 is %2, more than %3")                \
                                               .arg(QLatin1String(#value))                         \
                                               .arg(value)                                         \
                                               .arg(most)))

} // namespace

class PathBarCostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void newRow_data() { depths(); }
    void newRow();
    void neighbours_data() { depths(); }
    void neighbours();
    void neighboursWithRoom();
    void clicks();
    void resizing_data() { depths(); }
    void resizing();
    void sameFolderCostsNothing();

private:
    static void depths();
};

void PathBarCostTest::depths()
{
    QTest::addColumn<int>("depth");

    for (const int depth : {5, 20, 50, 100, 200})
        QTest::addRow("%d folders", depth) << depth;
}

void PathBarCostTest::newRow()
{
    QFETCH(int, depth);
    withDialog([&](QFileDialog& dialog) {
        goTo(dialog, QStringLiteral("/other"));
        layOut();
        const auto work = workOf([&] { goTo(dialog, pathOf(depth, QStringLiteral("last"))); });
        QCOMPARE(buttons(dialog).size(), depth);
        QVERIFY(buttons(dialog).constLast()->isVisible());
        VERIFY_AT_MOST(work->fonts, depth + 1);
        VERIFY_AT_MOST(work->resizes, 4 * depth);
        VERIFY_AT_MOST(work->moves, 4 * depth);
        VERIFY_AT_MOST(work->layouts, 3);
        VERIFY_AT_MOST(work->blocks, 130 * depth + 300);
    });
}

// Going up, down and to the neighbour changes one or two buttons; the others are
// only looked at.
void PathBarCostTest::neighbours()
{
    QFETCH(int, depth);
    withDialog([&](QFileDialog& dialog) {
        const QString left = pathOf(depth, QStringLiteral("left"));
        const QString right = pathOf(depth, QStringLiteral("side"));
        const QString parent = QFileInfo(left).path();
        goTo(dialog, left);
        layOut();
        goTo(dialog, right); // what is measured but once
        layOut();
        for (const QString& folder : {left, parent, left, right, parent, right}) {
            const auto work = workOf([&] { goTo(dialog, folder); });
            QCOMPARE(buttons(dialog).size(), depth);
            VERIFY_AT_MOST(work->fonts, 2);
            VERIFY_AT_MOST(work->layouts, 2);
            VERIFY_AT_MOST(work->blocks, 3 * depth + 250);
        }
    });
}

void PathBarCostTest::neighboursWithRoom()
{
    withDialog([&](QFileDialog& dialog) {
        dialog.resize(1200, dialog.height());
        goTo(dialog, QStringLiteral("/Users/ann/Plans/old"));
        layOut();
        const auto up = workOf([&] { goTo(dialog, QStringLiteral("/Users/ann/Plans")); });
        QCOMPARE(up->fonts, 2);
        QCOMPARE(up->toolTips, 0);
        VERIFY_AT_MOST(up->resizes, 2);
        VERIFY_AT_MOST(up->moves, 2);
        const auto down = workOf([&] { goTo(dialog, QStringLiteral("/Users/ann/Plans/old")); });
        QCOMPARE(down->fonts, 2);
        VERIFY_AT_MOST(down->resizes, 2);
        VERIFY_AT_MOST(down->moves, 2);
    });
}

void PathBarCostTest::clicks()
{
    DrawingFolder base;
    HostRequest request;
    request.start = base.addFolder(QStringLiteral("a/b/c/d/e/f/g/h/i/j/k/l/m/n/o/p/q/r/s/t"));
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        layOut();
        const auto row = buttons(dialog);
        for (const int up : {2, 1, 2, 1}) {
            const auto work = workOf([&] { row.at(row.size() - up)->click(); });
            QCOMPARE(buttons(dialog), row);
            QCOMPARE(work->fonts, 2);
            VERIFY_AT_MOST(work->resizes, 3 * row.size());
        }
        dialog.reject();
    })});
}

void PathBarCostTest::resizing()
{
    QFETCH(int, depth);
    withDialog([&](QFileDialog& dialog) {
        goTo(dialog, pathOf(depth, QStringLiteral("last")));
        layOut();
        const QSize size = dialog.size();
        for (const int more : {150, 300, 0}) {
            const auto work = workOf([&] { dialog.resize(size.width() + more, size.height()); });
            QCOMPARE(work->fonts, 0);
            VERIFY_AT_MOST(work->resizes, 4 * depth);
            VERIFY_AT_MOST(work->moves, 4 * depth);
            VERIFY_AT_MOST(work->blocks, 30 * depth + 130);
        }
    });
}

void PathBarCostTest::sameFolderCostsNothing()
{
    withDialog([&](QFileDialog& dialog) {
        const QString folder = pathOf(50, QStringLiteral("last"));
        goTo(dialog, folder);
        layOut();
        const auto work = workOf([&] { goTo(dialog, folder); });
        QCOMPARE(work->fonts + work->resizes + work->moves + work->layouts, 0);
        VERIFY_AT_MOST(work->blocks, 30);
    });
}

QTEST_MAIN(PathBarCostTest)
#include "PathBarCostTest.moc"
