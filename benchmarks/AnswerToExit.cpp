// SPDX-License-Identifier: MIT
// How long it takes from the user's answer until the request has returned, and
// until the process has ended: run.py sees the end and is told the answer.
#include "support/DialogProbe.h"
#include "support/DrawingRequest.h"

#include <QListView>

namespace {

void chooseFirst(DialogProbe& probe)
{
    auto* list = probe.dialog().findChild<QListView*>(QStringLiteral("listView"));
    list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
}

} // namespace

int main(int argc, char* argv[])
{
    const ProbedApplication application(argc, argv);
    const QByteArray side = Measurement::argument("side").toUtf8();
    const bool accepts = Measurement::argument("answer") == QLatin1String("accept");
    double complete = 0;
    Measurement::Clock::time_point answered;
    const auto answer = [&](DialogProbe& probe) {
        QDialog& dialog = probe.dialog(); // where accept() is public
        answered = Measurement::Clock::now();
        accepts ? dialog.accept() : dialog.reject();
    };
    const DialogProbe probe({Steps::untilRows(Measurement::number("rows"), &complete),
                             Steps::untilQuiet(), Steps::doNow(chooseFirst), Steps::untilQuiet(),
                             Steps::doNow(answer)});
    const QString path = (side == "floor" ? askFloor : askSubject)(drawingRequest());
    Measurement::report(side, "returned", Measurement::millisecondsSince(answered));
    // What is left of the process's time counts from here.
    Measurement::report(side, "@exit", Measurement::milliseconds(answered.time_since_epoch()));
    return path.isEmpty() == accepts ? 1 : 0;
}
