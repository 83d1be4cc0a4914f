// SPDX-License-Identifier: MIT
// How much memory a request takes, and how much stays after many.
#include "support/DialogProbe.h"
#include "support/DrawingRequest.h"

#include <malloc.h>

#include <fstream>
#include <string>

namespace {

constexpr int WarmUp = 10; ///< requests after which caches are full

// A line of the process's status, in MB.
double status(const std::string& name)
{
    std::ifstream file("/proc/self/status");
    for (std::string word; file >> word;) {
        double kilobytes = 0;
        if (word == name + ':' && file >> kilobytes)
            return kilobytes / 1024;
    }
    return 0;
}

double heap()
{
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / (1024 * 1024);
}

void request(bool floor, int rows)
{
    double complete = 0;
    const DialogProbe probe({Steps::untilPainted(), Steps::untilRows(rows, &complete),
                             Steps::pause(1), Steps::reject()});
    (floor ? askFloor : askSubject)(drawingRequest());
}

} // namespace

int main(int argc, char* argv[])
{
    const ProbedApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side").toUtf8();
    const int rows = Measurement::number("rows");
    const int requests = Measurement::number("requests", 1);
    const double residentBefore = status("VmRSS");
    const double heapBefore = heap();
    request(side == "floor", rows);
    if (requests == 1) {
        Measurement::report(side, "peak resident growth", status("VmHWM") - residentBefore);
        Measurement::report(side, "heap growth left", heap() - heapBefore);
        return 0;
    }
    double resident = 0;
    double used = 0;
    for (int count = 2; count <= requests; ++count) {
        request(side == "floor", rows);
        if (count == WarmUp) {
            resident = status("VmRSS");
            used = heap();
        }
    }
    const double each = 1024.0 / (requests - WarmUp);
    Measurement::report(side, "resident growth, each request", (status("VmRSS") - resident) * each);
    Measurement::report(side, "heap growth, each request", (heap() - used) * each);
}
