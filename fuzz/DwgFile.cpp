// SPDX-License-Identifier: MIT
// A file that may be a DWG drawing with a preview.
#include "PreviewPicture.h"
#include "VyDwgPreview.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    previewOf(data, size, VyDwgPreview::read);
    return 0;
}
