// SPDX-License-Identifier: MIT
// Host PLUGIN STEP...: a host that knows the dialogs through a plug-in alone and
// may let go of it. Says each step with what came of it:
//
//     load      loads the plug-in
//     qt        a request in the Qt style, cancelled: its status
//     preview   as qt, cancelled while the preview of the first file is read
//     native    a request in the native style: its status
//     thread    as native, but wrongly on another thread
//     modules   how many modules of native panels are loaded, and whether GNUstep is
//     unload    lets go of the plug-in
//     wait      until what is still being read has been
#include <QApplication>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

#include <dlfcn.h>
#include <link.h>

namespace {

struct Loaded
{
    int modules = 0;
    bool gnustep = false;
};

int look(dl_phdr_info* library, std::size_t, void* data)
{
    auto* const loaded = static_cast<Loaded*>(data);
    loaded->modules += std::strstr(library->dlpi_name, "VyFileDialogsNative") != nullptr;
    loaded->gnustep |= std::strstr(library->dlpi_name, "libgnustep") != nullptr;
    return 0;
}

void printLoaded()
{
    Loaded loaded;
    dl_iterate_phdr(look, &loaded);
    std::printf("modules %d, GNUstep %s\n", loaded.modules, loaded.gnustep ? "yes" : "no");
}

// What Qt says of its platform is none of ours.
void onMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (message.startsWith(QLatin1String("Vy")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

// What the host did not get to while its plug-in was busy.
void runEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

bool take(const char* step, const char* path, void*& plugin)
{
    if (std::strcmp(step, "load") == 0) {
        plugin = dlopen(path, RTLD_NOW | RTLD_LOCAL);
        std::printf("load %s\n", plugin ? "ok" : dlerror());
        return plugin != nullptr;
    }
    if (std::strcmp(step, "modules") == 0) {
        printLoaded();
        return true;
    }
    if (std::strcmp(step, "unload") == 0) {
        std::printf("unload %s\n", dlclose(plugin) == 0 ? "ok" : dlerror());
        return true;
    }
    if (std::strcmp(step, "wait") == 0) {
        std::this_thread::sleep_for(std::chrono::seconds(2));
        std::printf("wait ok\n");
        return true;
    }
    const auto ask = reinterpret_cast<int (*)(const char*)>(dlsym(plugin, "ask"));
    if (!ask)
        return false;
    int status = 0;
    if (std::strcmp(step, "thread") == 0)
        std::thread([&] { status = ask("native"); }).join();
    else
        status = ask(step);
    std::printf("%s %d\n", step, status);
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    qInstallMessageHandler(onMessage);
    const QApplication application(argc, argv);
    void* plugin = nullptr;
    for (int i = 2; i < argc; ++i) {
        if (!take(argv[i], argv[1], plugin))
            return 1;
        std::fflush(stdout);
        runEvents();
    }
    return 0;
}
