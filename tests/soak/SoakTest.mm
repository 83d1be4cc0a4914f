// SPDX-License-Identifier: MIT
// A host that makes requests of all kinds and styles all week: what it holds after
// the first hundred, it holds after the last.
//
// VY_SOAK_REQUESTS requests are made, 300 if it is not set; with VY_SOAK_TABLE the curves
// are written to that file.
#include "Curve.h"
#include "NativeTest.h"
#include "PanelHoldings.h"
#include "Requests.h"

#include <QPixmapCache>

#include <fstream>

#include <unistd.h>

namespace {

constexpr int warmUp = 100;
// KiB in a thousand requests. GNUstep's back-end remembers every window that a picture
// was cached in, twenty for each panel. What Qt's dialogs leave, LifetimeTest looks at.
constexpr double ofPanels = 500;

// In KiB.
double residentMemory()
{
    double pages = 0;
    double residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    return residentPages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

QVector<double> values()
{
    const PanelHoldings now;
    return {now.heap,
            residentMemory(),
            double(now.objects),
            double(now.widgets),
            double(now.windows),
            double(now.panelWindows),
            double(now.windowsOnScreen),
            double(now.textViews),
            double(now.timers),
            double(now.descriptors),
            double(now.threads)};
}

} // namespace

class SoakTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void holdsNoMoreThanBefore();

private:
    void request(int number);

    SoakFolder m_folder;
    Chance m_chance;
};

void SoakTest::initTestCase()
{
    NativeTest::initTestCase();
    // It grows up to a limit, whoever shows what, and would hide what grows without one.
    QPixmapCache::setCacheLimit(0);
}

void SoakTest::request(int number)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    CVyFileDialog::SetStyle(number % 2 ? CVyFileDialog::StyleQt : CVyFileDialog::StyleNative);
    const QString made =
        number % 2 ? requestQtDialog(m_folder, m_chance) : requestPanel(m_folder, m_chance);
    // Qt asks about a window that another program has just closed.
    for (const QString& message : takeMessages()) {
        if (!message.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)")))
            QTest::qFail(qPrintable(message), __FILE__, __LINE__);
    }
    if (QTest::currentTestFailed())
        QTest::qFail(qPrintable(QStringLiteral("%1 %2: %3")
                                    .arg(number % 2 ? "Qt's dialog" : "panel")
                                    .arg(number)
                                    .arg(made)),
                     __FILE__, __LINE__);
    [pool drain];
}

void SoakTest::holdsNoMoreThanBefore()
{
    const int count = qEnvironmentVariableIsSet("VY_SOAK_REQUESTS")
                          ? qEnvironmentVariableIntValue("VY_SOAK_REQUESTS")
                          : 300;
    const int step = qMax(10, count / 100);
    Curve curve({{"heap [KiB]", ofPanels},
                 {"resident memory [KiB]", ofPanels},
                 {"Qt's objects"},
                 {"widgets"},
                 {"Qt's windows"},
                 {"panels' windows"},
                 {"windows on screen"},
                 {"text views"},
                 {"timers"},
                 {"descriptors"},
                 {"threads"}});
    for (int number = 1; number <= count; ++number) {
        request(number);
        if (QTest::currentTestFailed())
            return;
        if (number >= warmUp && number % step == 0) {
            Holdings::settle();
            curve.add(number, values());
        }
    }
    if (qEnvironmentVariableIsSet("VY_SOAK_TABLE"))
        curve.write(qEnvironmentVariable("VY_SOAK_TABLE"));
    curve.expectFlat();
}

int main(int argc, char* argv[])
{
    return runCounted<SoakTest>(argc, argv);
}

#include "SoakTest.moc"
