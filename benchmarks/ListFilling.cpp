// SPDX-License-Identifier: MIT
// How long a request takes until its list is complete, and for how long the
// user interface stands still on the way.
#include "support/DialogProbe.h"
#include "support/DrawingRequest.h"

int main(int argc, char* argv[])
{
    const ProbedApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side").toUtf8();
    double complete = 0;
    const auto tell = [&](DialogProbe& probe) {
        Measurement::report(side, "complete", complete);
        Measurement::report(side, "settled", qMax(complete, probe.lastChange()));
        Measurement::report(side, "stall", probe.longestStall());
    };
    const DialogProbe probe({Steps::untilRows(Measurement::number("rows"), &complete),
                             Steps::untilQuiet(), Steps::doNow(tell), Steps::reject()});
    (side == "floor" ? askFloor : askSubject)(drawingRequest());
}
