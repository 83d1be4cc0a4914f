// SPDX-License-Identifier: MIT
#include "Requests.h"

#include "PanelDriver.h"

#include <QtTest>

namespace {

struct Ending
{
    const char* name;
    bool accepted;
    std::vector<PanelDriver::Step> steps;
};

PanelDriver::Step chooseMode(NSInteger index)
{
    return onPanel([index](NSSavePanel* panel) {
        if (NSPopUpButton* const modes = popup(panel, @selector(openmodeChanged:)))
            choose(modes, index);
    });
}

std::vector<Ending> endingsOf(bool saves, const QStringList& names)
{
    std::vector<Ending> endings{
        {"cancelled", false, {cancel()}},
        {"types", false, {chooseType(1), chooseType(2), chooseType(0), cancel()}},
    };
    const QString question = QStringLiteral("red.png");
    if (saves) {
        endings.push_back({"new name", true, {typeName("new.png"), accept()}});
        endings.push_back(
            {"replaced",
             true,
             {typeName("red.png"), accept(), answerAlert(NSAlertDefaultReturn, question)}});
        endings.push_back({"kept",
                           false,
                           {typeName("red.png"), accept(),
                            answerAlert(NSAlertAlternateReturn, question), cancel()}});
        return endings;
    }
    endings.push_back({"clicked", true, {click(names), accept()}});
    endings.push_back({"mode", true, {chooseMode(1), click(names), accept()}});
    return endings;
}

} // namespace

QString requestPanel(const SoakFolder& folder, Chance& chance)
{
    HostRequest host = anyRequest(folder, chance);
    const bool several = host.type == CVyUserIO::FileNameOpen && chance() % 2;
    // Such a panel starts in the working directory when it is told a file.
    if (several)
        host.start = folder.path();
    // Without modes a panel lets one file be chosen.
    const QStringList names = several && host.flags == CVyUserIO::FileNameModeChoices
                                  ? QStringList{"blue.png", "red.png"}
                                  : QStringList{"blue.png"};
    const Ending ending = oneOf(endingsOf(host.type == CVyUserIO::FileNameSave, names), chance);
    {
        const PanelDriver driver(ending.steps);
        several ? host.getFileNames({}) : host.getFileName({});
    }
    return judged(host, several, ending.name, ending.accepted);
}
