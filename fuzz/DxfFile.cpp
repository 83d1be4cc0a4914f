// SPDX-License-Identifier: MIT
// A file that may be a DXF drawing with a preview.
#include "PreviewPicture.h"
#include "VyDxfPreview.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    previewOf(data, size, VyDxfPreview::read);
    return 0;
}
