// SPDX-License-Identifier: MIT
#include "VyFileFacts.h"

bool vyIsSameFile(const VyFileFacts& one, const VyFileFacts& other)
{
    if (!one.isKnown() || !other.isKnown() || one.inode != other.inode)
        return false;
    if (one.born.isValid() && other.born.isValid())
        return one.born == other.born;
    return one.device == other.device && one.size == other.size && one.modified == other.modified;
}
