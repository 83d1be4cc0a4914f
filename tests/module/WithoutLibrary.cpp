// SPDX-License-Identifier: MIT
// A module of native panels that needs a library which is not there, as the real
// one does on a machine without GNUstep.
extern "C" int vyNotInstalled();
extern "C" __attribute__((visibility("default"))) int VyCreateNativeDialog()
{
    return vyNotInstalled();
}
