// SPDX-License-Identifier: MIT
extern "C" __attribute__((visibility("default"))) int vyNotInstalled()
{
    return 0;
}
