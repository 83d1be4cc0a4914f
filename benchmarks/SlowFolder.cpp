// SPDX-License-Identifier: MIT
// For how long the user interface stands still at most while a folder on a slow
// share is opened, its list is walked with the arrow keys, and drawings are
// clicked. cases.py preloads what makes the folder slow.
#include "support/DialogProbe.h"
#include "support/DrawingRequest.h"

#include <QKeyEvent>
#include <QListView>

namespace {

constexpr int Files = 8; ///< walked over and clicked, of those that are seen without scrolling

QListView* listOf(const DialogProbe& probe)
{
    return probe.dialog().findChild<QListView*>(QStringLiteral("listView"));
}

void pressDown(DialogProbe& probe)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(listOf(probe), &press);
}

DialogProbe::Step click(int row)
{
    return Steps::doNow([row](DialogProbe& probe) {
        QListView* const list = listOf(probe);
        const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
        const QPointF place = list->visualRect(index).center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(list->viewport(), &event);
        }
    });
}

DialogProbe::Step tell(const char* side, const char* metric)
{
    return Steps::doNow([side, metric](DialogProbe& probe) {
        Measurement::report(side, metric, probe.longestStall());
        probe.beginPhase();
    });
}

} // namespace

int main(int argc, char* argv[])
{
    const ProbedApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side").toUtf8();
    const DialogProbe::Step look = Steps::pause(Measurement::number("look", 400));
    double complete = 0;
    std::vector<DialogProbe::Step> steps{
        Steps::untilRows(Measurement::number("rows"), &complete), Steps::untilQuiet(),
        tell(side, "stall opening"),
        Steps::doNow([](DialogProbe& probe) { listOf(probe)->setFocus(); })};
    for (int i = 0; i < Files; ++i)
        steps.insert(steps.end(), {Steps::doNow(pressDown), look});
    steps.push_back(tell(side, "stall walking"));
    for (int i = 0; i < Files; ++i)
        steps.insert(steps.end(), {click(Files - 1 - i), look});
    steps.insert(steps.end(), {tell(side, "stall clicking"), Steps::reject()});
    const DialogProbe probe(std::move(steps));
    (side == "floor" ? askFloor : askSubject)(drawingRequest());
    Measurement::report(side, "complete", complete);
}
