// SPDX-License-Identifier: MIT
// How fast a host's filter string becomes the dialog's list of types.
#include "support/Measurement.h"

#include "VyFileTypeList.h"
#include "VyUtils.h"

namespace {

CVyString filterOf(int types)
{
    QStringList pairs;
    for (int i = 0; i < types; ++i)
        pairs << QStringLiteral("Drawings of kind %1").arg(i)
              << QStringLiteral("*.dw%1;*.dx%1").arg(i);
    return CVyString(pairs.join('&'));
}

// Megabytes a second: a character of these strings is a byte in UTF-8.
double speed(const CVyString& filter, double start, int times)
{
    return static_cast<double>(QString(filter).size()) * times / (Measurement::work() - start) /
           1000;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side", QStringLiteral("subject")).toUtf8();
    const int types = Measurement::number("types", 1);
    const CVyString filter = filterOf(types);
    const int times = qMax(1, 20000 / types); // a few milliseconds
    std::vector<CVyString> converted(static_cast<std::size_t>(times));
    for (int round = 0; round < Measurement::number("rounds", 10); ++round) {
        const double start = Measurement::work();
        for (CVyString& each : converted)
            each = CVyUtils::ConvertToQtFilter(filter);
        Measurement::report(side, "conversion", speed(filter, start, times));
        const double listStart = Measurement::work();
        for (const CVyString& each : converted)
            VyFileTypeList::fromConverted(each);
        Measurement::report(side, "lists of types", speed(filter, listStart, times));
    }
}
