// SPDX-License-Identifier: MIT
// What a host gives as the place to start from, whatever it is.
#include "Fuzz.h"
#include "VyStartPath.h"

#include <QFileInfo>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = Fuzz::text(data, size);
    for (const auto request :
         {VyStartPath::Request::SingleFile, VyStartPath::Request::MultipleFiles}) {
        const std::vector<VyStartPath::Preset> presets = VyStartPath::presets(path, request);
        Fuzz::require(presets.size() <= 2, "a folder and a name at most");
        Fuzz::require(!path.isEmpty() || presets.empty(), "nothing presets nothing");
        for (const VyStartPath::Preset& preset : presets) {
            Fuzz::require(!preset.value.isEmpty(), "no empty preset");
            Fuzz::require(!preset.value.contains(QChar(QChar::Null)), "no zero");
            Fuzz::require(
                preset.setter != &CVyFileDialogImpl::setDefaultFolder ||
                    (QFileInfo(preset.value).isAbsolute() && QFileInfo::exists(preset.value)),
                "a folder is absolute and there");
        }
    }
    return 0;
}
