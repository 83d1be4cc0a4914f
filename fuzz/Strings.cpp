// SPDX-License-Identifier: MIT
// The host's strings: conversions that lose nothing, and parts that make the whole.
#include "Fuzz.h"
#include "VyString.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace {

// Any UTF-16, also with surrogates that have no partner.
QString anyUnits(FuzzedDataProvider& data)
{
    QString text;
    for (auto count = data.ConsumeIntegralInRange(0, 64); count > 0; --count)
        text += QChar(data.ConsumeIntegral<ushort>());
    return text;
}

// Any wide characters but the one that ends a string.
std::wstring anyWide(FuzzedDataProvider& data)
{
    std::wstring text;
    for (auto count = data.ConsumeIntegralInRange(0, 64); count > 0; --count)
        text += static_cast<wchar_t>(data.ConsumeIntegralInRange<std::uint32_t>(1, 0x110010));
    return text;
}

void checkParts(const CVyString& text, char separator, int at)
{
    Fuzz::require(text.left(at) + text.mid(at < 0 ? 0 : at) == text, "left and mid make the whole");
    const std::vector<CVyString> parts = text.SplitA(separator);
    const char separators[] = {separator, '\0'};
    CVyString joined = parts.front();
    for (std::size_t i = 1; i < parts.size(); ++i)
        joined += CVyString(QString(QLatin1Char(separator))) + parts[i];
    Fuzz::require(joined == text, "the parts make the whole");
    Fuzz::require((text.findA(separators) < 0) == (parts.size() == 1), "parted where it is found");
    Fuzz::require(text.findA(separators) <= text.reverseFindA(separators), "first before last");

    CVyString replaced = text;
    replaced.replaceA(separators, "xy");
    Fuzz::require(replaced.findA(separators) < 0, "all are replaced");
    Fuzz::require(replaced.getLength() == text.getLength() + static_cast<int>(parts.size()) - 1,
                  "each by two");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QString units = anyUnits(data);
    Fuzz::require(QString(CVyString(units)) == units, "UTF-16 comes back as it was");

    const CVyString wide(anyWide(data).c_str());
    const CVyString again{QString(wide)};
    Fuzz::require(CVyString(QString(again)) == again, "wide text comes back once it was UTF-16");
    Fuzz::require(wide.equalNoCase(wide), "a string equals itself");
    const CVyString upper(units.toUpper());
    Fuzz::require(upper.equalNoCase(wide) == wide.equalNoCase(upper), "and another both ways");

    CVyString trimmed = wide;
    const CVyString once = trimmed.trimRight();
    Fuzz::require(trimmed.trimRight() == once, "trimmed is trimmed");
    // Not an x or y: what replaces is not to be found again.
    checkParts(CVyString(units), data.PickValueInArray({'&', ';', ',', ' ', '.', '\xe4'}),
               data.ConsumeIntegralInRange(0, 70));
    return 0;
}
