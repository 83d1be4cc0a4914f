// SPDX-License-Identifier: MIT
// vyfiledialog-sample: a small drawing application to try the dialogs in.
#include "HostPlatform.h"
#include "HostProcess.h"
#include "SampleCommandLine.h"
#include "SampleWindow.h"
#include "StandardStreams.h"
#include "VyFileDialog.h"

#include <QApplication>

using HostProcess::fail;
using HostProcess::print;

namespace {

constexpr char Program[] = "vyfiledialog-sample";

ExitStatus showWindow(const SampleCommandLine::Parsed& parsed)
{
    if (!HostPlatform::hasDisplay())
        return fail(QStringLiteral("there is no display to show a window on"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    HostProcess::startApplication(Program);
    CVyFileDialog::LoadTranslations();
    SampleWindow window(parsed.style);
    window.show();
    window.openFiles(parsed.files);
    return QApplication::exec() == 0 ? ExitAccepted : ExitFailure;
}

ExitStatus run(int argc, char** argv)
{
    // Only --help and --version need the standard output.
    StandardStreams::prepare(Program);
    SampleCommandLine::Parsed parsed;
    {
        const QCoreApplication application(argc, argv); // knows the arguments' encoding
        parsed = SampleCommandLine::parse(QCoreApplication::arguments());
        if (parsed.action == Options::Action::Help)
            return print(SampleCommandLine::helpText().toLocal8Bit(), ExitAccepted);
    }
    if (!parsed.error.isEmpty()) {
        StandardStreams::say(parsed.error);
        return ExitUsage;
    }
    if (parsed.action == Options::Action::Version)
        return print(SampleCommandLine::versionText().toLocal8Bit(), ExitAccepted);
    return showWindow(parsed);
}

} // namespace

int main(int argc, char* argv[])
{
    HostProcess::begin();
    HostProcess::end(run(argc, argv));
}
