// SPDX-License-Identifier: MIT
#include "DeskUser.h"

#include <QWidget>
#include <QtTest>

namespace {

constexpr int PatienceMs = 40000;

// point X Y, click X Y, wheel X Y: at a point of the screen. The pointer rests
// before a button goes down, as a hand does.
// drag X Y X Y: from the one point to the other.
// active TITLE: waits until that window has the keyboard.
// activate TITLE: goes to the window through the window manager. GNUstep ignores
// the first request now and then.
const char script[] = R"(
    set -u
    point() { xdotool mousemove "$1" "$2"; sleep 0.1; }
    click() { point "$1" "$2"; xdotool mousedown 1; sleep 0.05; xdotool mouseup 1; sleep 0.1; }
    wheel() { point "$1" "$2"; xdotool click 5; sleep 0.1; }
    drag() {
        point "$1" "$2"
        xdotool mousedown 1
        local step
        for step in 1 2 3 4 5 6 7 8; do
            point $(($1 + ($3 - $1) * step / 8)) $(($2 + ($4 - $2) * step / 8))
        done
        point "$3" "$4"
        xdotool mouseup 1
        sleep 0.3
    }
    is_active() {
        [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1" &&
            $(xdotool getwindowfocus getwindowname 2>/dev/null) == "$1" ]]
    }
    active() {
        local tries
        for ((tries = 0; tries < 200; ++tries)); do
            is_active "$1" && sleep 0.3 && return
            sleep 0.05
        done
        echo "\"$1\" did not become active" >&2
        exit 1
    }
    activate() {
        local tries
        for ((tries = 0; tries < 10; ++tries)); do
            xdotool search --onlyvisible --name "^$1\$" windowactivate >/dev/null 2>&1
            sleep 0.2
            is_active "$1" && break
        done
        active "$1"
    }
    active "$1"
    eval "$2"
    echo done
)";

QString at(const char* command, const QPoint& place)
{
    return QStringLiteral("%1 %2 %3\n").arg(QLatin1String(command)).arg(place.x()).arg(place.y());
}

QPoint centre(const QWidget& widget)
{
    return widget.mapToGlobal(widget.rect().center());
}

} // namespace

DeskUser::DeskUser(const QString& title, const QString& commands)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral("bash"), {QStringLiteral("-c"), QString::fromLatin1(script),
                                             QStringLiteral("user"), title, commands});
}

DeskUser::~DeskUser()
{
    finish();
    if (!m_output.endsWith("done\n"))
        QTest::qFail("the user did not come to the end", __FILE__, __LINE__);
}

void DeskUser::wait()
{
    static_cast<void>(
        QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, PatienceMs));
}

QStringList DeskUser::said()
{
    finish();
    QStringList lines =
        QString::fromLocal8Bit(m_output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.removeLast();
    return lines;
}

void DeskUser::finish()
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(PatienceMs))
        QTest::qFail("the user did not come to an end", __FILE__, __LINE__);
    m_output += m_process.readAllStandardOutput();
}

QString pointAt(const QPoint& place)
{
    return at("point", place);
}

QString pointAt(const QWidget& widget)
{
    return pointAt(centre(widget));
}

QString clickOn(const QPoint& place)
{
    return at("click", place);
}

QString clickOn(const QWidget& widget)
{
    return clickOn(centre(widget));
}
