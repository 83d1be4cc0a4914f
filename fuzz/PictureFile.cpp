// SPDX-License-Identifier: MIT
// A file that may be a PNG, JPEG, BMP or SVG picture.
#include "PreviewPicture.h"
#include "VyPreviewImage.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    previewOf(data, size, VyPreviewImage::fromPictureFile);
    return 0;
}
