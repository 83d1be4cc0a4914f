// SPDX-License-Identifier: MIT
// createMac() where the native panels are a module of their own, loaded by the
// first request for one. Loading GNUstep takes longer than loading Qt, and a
// host that shows Qt's dialog need not wait for it.
#include "VyFileDialogsNative.h"

#include <QByteArray>
#include <QtDebug>

#include <dlfcn.h>

namespace {

using Create = decltype(&VyCreateNativeDialog);

// In a folder beside this library, wherever that is. By a run path the system would find it,
// too, but not in a host that comes between us and dlopen(), as sanitizers do.
QByteArray modulePath()
{
    Dl_info self = {};
    dladdr(reinterpret_cast<void*>(&modulePath), &self);
    const QByteArray library(self.dli_fname);
    return library.left(library.lastIndexOf('/') + 1) + VY_NATIVE_MODULE;
}

// Null, with a warning that says why, when there is no such module.
Create load()
{
    // Never closed, for the module's classes cannot be unregistered. All that it
    // needs is looked up now, lest something prove missing under a panel.
    void* const module = dlopen(modulePath().constData(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = module ? dlsym(module, "VyCreateNativeDialog") : nullptr;
    if (!entry)
        qWarning("VyFileDialogs: no native panel can be shown: %s", dlerror());
    return reinterpret_cast<Create>(entry);
}

} // namespace

CVyFileDialogImpl* CVyFileDialogImpl::createMac(CVyUserIO::_FileNameType type, bool multiple,
                                                bool modeChoices)
{
    static Create create = nullptr;
    if (!create)
        create = load();
    return create ? create(type, multiple, modeChoices) : nullptr;
}
