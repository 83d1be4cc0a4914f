// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <chrono>
#include <cstdio>
#include <ctime>

/// What every measuring program shares: a clock, its arguments, and a line for
/// each value. Statistics are made from many runs, by benchmarks/run.py.
namespace Measurement {

using Clock = std::chrono::steady_clock;

inline double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

inline double millisecondsSince(Clock::time_point start)
{
    return milliseconds(Clock::now() - start);
}

/// What this thread has worked so far, in milliseconds. For parts that neither wait nor
/// start threads: other programs on the machine do not count.
inline double work()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Writes one value: whose it is ("floor", "subject"), of what, how much.
inline void report(const char* side, const char* metric, double value)
{
    std::printf("%s\t%s\t%.15g\n", side, metric, value);
    std::fflush(stdout);
}

/// The value of the program's argument "--name=value".
inline QString argument(const char* name, const QString& otherwise = QString())
{
    const QString start = QStringLiteral("--") + QLatin1String(name) + QLatin1Char('=');
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString& each : arguments) {
        if (each.startsWith(start))
            return each.mid(start.size());
    }
    return otherwise;
}

inline int number(const char* name, int otherwise = 0)
{
    return argument(name, QString::number(otherwise)).toInt();
}

} // namespace Measurement
