// SPDX-License-Identifier: MIT
// Starts a program that shows one dialog and tells, all seen from outside, how
// long it takes from the start of the process until its window is mapped and
// until the process rests, and from the closing of the window until its end.
//
//     WholeProcess --side=NAME --until=mapped|rest COMMAND ARGUMENT...
//
// With "mapped" the window is closed at once and nothing else is told.
#include "support/Measurement.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

using Measurement::Clock;

namespace {

constexpr double PatienceMs = 120000;
constexpr double SampleMs = 10;
constexpr double RestMs = 400;    ///< so long without work is a process at rest
constexpr double WorkShare = 0.1; ///< of a processor, from which on a sample counts as work

// The windows that the window manager manages: it does so once they are mapped.
Window managedWindow(Display* display)
{
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display),
                       XInternAtom(display, "_NET_CLIENT_LIST", False), 0, 64, False, XA_WINDOW,
                       &type, &format, &count, &rest, &data);
    Window window = None;
    if (count > 0)
        std::memcpy(&window, data, sizeof window);
    if (data)
        XFree(data);
    return window;
}

Window waitForWindow(Display* display, Clock::time_point start, bool managed)
{
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    while (Measurement::millisecondsSince(start) < PatienceMs) {
        while (XPending(display) > 0) {
            XEvent event;
            XNextEvent(display, &event);
        }
        const Window window = managedWindow(display);
        if ((window != None) == managed)
            return window;
        if (XPending(display) == 0)
            poll(&connection, 1, 100);
    }
    std::fprintf(stderr, "the window did not %s\n", managed ? "come" : "go");
    std::exit(1);
}

// As the window manager's close button does.
void closeWindow(Display* display, Window window)
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "_NET_CLOSE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[1] = 2; // asked by the user
    XSendEvent(display, DefaultRootWindow(display), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XFlush(display);
}

// The processor time of all threads, in milliseconds.
double processorTime(pid_t process)
{
    double sum = 0;
    std::error_code error;
    const auto tasks = "/proc/" + std::to_string(process) + "/task";
    for (const auto& task : std::filesystem::directory_iterator(tasks, error)) {
        double nanoseconds = 0;
        std::ifstream(task.path() / "schedstat") >> nanoseconds;
        sum += nanoseconds / 1e6;
    }
    return sum;
}

// When the process last worked before it rested.
Clock::time_point waitForRest(pid_t process)
{
    const Clock::time_point start = Clock::now();
    Clock::time_point lastWork = start;
    Clock::time_point lastSample = start;
    double used = processorTime(process);
    while (Measurement::millisecondsSince(lastWork) < RestMs) {
        usleep(static_cast<useconds_t>(SampleMs * 1000));
        const Clock::time_point now = Clock::now();
        const double usedNow = processorTime(process);
        const double elapsed = Measurement::milliseconds(now - lastSample);
        // Threads that have ended are missing from the sum.
        if (usedNow < used || usedNow - used > WorkShare * elapsed)
            lastWork = now;
        lastSample = now;
        used = usedNow;
        if (Measurement::millisecondsSince(start) > PatienceMs)
            break;
    }
    return lastWork;
}

pid_t start(char** command)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int file : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, file, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int error = posix_spawnp(&process, command[0], &actions, nullptr, command, environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        std::fprintf(stderr, "%s: %s\n", command[0], std::strerror(error));
        std::exit(1);
    }
    return process;
}

// What follows \a name in \a argument.
const char* valueOf(const char* argument, const char* name)
{
    const std::size_t length = std::strlen(name);
    return std::strncmp(argument, name, length) == 0 ? argument + length : nullptr;
}

} // namespace

int main(int argc, char* argv[])
{
    Display* const display = XOpenDisplay(nullptr);
    const char* const side = argc > 3 ? valueOf(argv[1], "--side=") : nullptr;
    const char* const until = argc > 3 ? valueOf(argv[2], "--until=") : nullptr;
    if (!display || !side || !until) {
        std::fputs("an X display and --side, --until and a command are needed\n", stderr);
        return 2;
    }
    XSelectInput(display, DefaultRootWindow(display), PropertyChangeMask);
    waitForWindow(display, Clock::now(), false); // the one before

    const Clock::time_point begin = Clock::now();
    const pid_t process = start(argv + 3);
    const Window window = waitForWindow(display, begin, true);
    const bool rests = std::strcmp(until, "rest") == 0;
    const double mapped = Measurement::millisecondsSince(begin);
    if (rests)
        Measurement::report(side, "at rest",
                            Measurement::milliseconds(waitForRest(process) - begin));
    else
        Measurement::report(side, "mapped", mapped);

    const Clock::time_point answered = Clock::now();
    closeWindow(display, window);
    waitpid(process, nullptr, 0);
    if (rests)
        Measurement::report(side, "answer to exit", Measurement::millisecondsSince(answered));
}
