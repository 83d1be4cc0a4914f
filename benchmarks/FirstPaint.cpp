// SPDX-License-Identifier: MIT
// How long a request takes until its window is painted, the first time in a
// process and later. Without --side, requests of both sides take turns.
#include "support/DialogProbe.h"
#include "support/DrawingRequest.h"

namespace {

constexpr int LateRequests = 5; ///< at the end of many: one alone says little

// What a dialog leaves to the host's event loop is done there, not in the next
// request.
void returnToHost()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

// Reports \a metric, if there is one.
void measure(bool floor, const DrawingRequest& request, const char* metric)
{
    double milliseconds = 0;
    const auto note = [&](DialogProbe& probe) { milliseconds = probe.firstPaint(); };
    const DialogProbe probe({Steps::untilPainted(), Steps::doNow(note), Steps::reject()});
    (floor ? askFloor : askSubject)(request);
    returnToHost();
    if (metric)
        Measurement::report(floor ? "floor" : "subject", metric, milliseconds);
}

// Each side goes first every other time.
void measureInTurn(const DrawingRequest& request, int requests)
{
    for (int count = 1; count <= requests; ++count) {
        const char* metric = count == 1 ? nullptr : "later";
        measure(count % 2 == 0, request, metric);
        measure(count % 2 != 0, request, metric);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const ProbedApplication application(argc, argv);
    const DrawingRequest request = drawingRequest();
    const QString side = Measurement::argument("side");
    const int requests = Measurement::number("requests", 1);
    if (side.isEmpty()) {
        measureInTurn(request, requests);
        return 0;
    }
    const char* metric = requests == 1 ? "first" : "late";
    for (int count = 1; count <= requests; ++count)
        measure(side == QLatin1String("floor"), request,
                count > requests - LateRequests ? metric : nullptr);
}
