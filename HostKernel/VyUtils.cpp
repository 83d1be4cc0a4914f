// SPDX-License-Identifier: MIT
#include "VyUtils.h"

namespace {

// The outermost reach of a description's parentheses: its last "(" and last ")".
struct Parentheses
{
    explicit Parentheses(const CVyString& text)
        : open(text.reverseFindA("("))
        , close(text.reverseFindA(")"))
    {}

    bool none() const { return open < 0 && close < 0; }
    bool enclose() const { return open >= 0 && open < close; }

    int open;
    int close;
};

// "Drawing (dwg)" names no pattern, so its parentheses go; "Drawing (*.dwg)"
// does, and keeps them.
CVyString withPatterns(const CVyString& description, const CVyString& patterns)
{
    CVyString text = description;
    const Parentheses tail(text);
    if (tail.enclose() && text.findA("*") < 0)
        text = text.left(tail.open);
    if (Parentheses(text).none())
        text = text.trimRight() + L" (" + patterns + L")";
    return text;
}

CVyString nameFilterEntry(const CVyString& description, const CVyString& patterns)
{
    const CVyString text = withPatterns(description, patterns);
    const Parentheses ends(text);
    if (!ends.enclose())
        return text;
    CVyString wildcards = text.mid(ends.open + 1, ends.close - ends.open - 1);
    wildcards.replaceA(";", " ").replaceA(",", " ");
    return text.left(ends.open).trimRight() + L" (" + wildcards + L")";
}

} // namespace

CVyString CVyUtils::ConvertToQtFilter(const CVyString& filter)
{
    const std::vector<CVyString> fields = filter.SplitA('&');
    CVyString converted;
    for (std::size_t i = 0; i < fields.size(); i += 2) {
        const CVyString& description = fields[i];
        const CVyString patterns = i + 1 < fields.size() ? fields[i + 1] : CVyString();
        if (description.isEmpty() && patterns.isEmpty())
            continue;
        converted += nameFilterEntry(description, patterns);
        converted += L"&";
        converted += patterns;
        converted += L"&";
    }
    return converted += L"&";
}
