// SPDX-License-Identifier: MIT
// How long the list takes to show another type that the user has chosen: from
// drawings to all files, and back.
#include "support/DialogProbe.h"
#include "support/DrawingRequest.h"

#include <QComboBox>
#include <QKeyEvent>

namespace {

DialogProbe::Step press(Qt::Key key)
{
    return Steps::doNow([key](DialogProbe& probe) {
        auto* types = probe.dialog().findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        probe.beginPhase();
        QKeyEvent pressed(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(types, &pressed);
    });
}

} // namespace

int main(int argc, char* argv[])
{
    const ProbedApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side").toUtf8();
    const int drawings = Measurement::number("rows");
    const int all = Measurement::number("all-rows");
    double complete = 0;
    const auto tell = [&](const char* time, const char* stall) {
        return Steps::doNow([&complete, side, time, stall](DialogProbe& probe) {
            Measurement::report(side, time, complete);
            Measurement::report(side, stall, probe.longestStall());
        });
    };
    const DialogProbe probe(
        {Steps::untilRows(drawings, &complete), Steps::untilQuiet(), press(Qt::Key_Down),
         Steps::untilRows(all, &complete), Steps::untilQuiet(), tell("widened", "stall widening"),
         press(Qt::Key_Up), Steps::untilRows(drawings, &complete), Steps::untilQuiet(),
         tell("narrowed", "stall narrowing"), Steps::reject()});
    (side == "floor" ? askFloor : askSubject)(drawingRequest());
}
