// SPDX-License-Identifier: MIT
#include "VyUtils.h"

#include <algorithm>
#include <string_view>

namespace {

using View = std::wstring_view;

// The outermost reach of a text's parentheses: its last "(" and last ")".
struct Parentheses
{
    explicit Parentheses(View text)
        : open(text.rfind(L'('))
        , close(text.rfind(L')'))
    {}

    bool none() const { return open == View::npos && close == View::npos; }
    bool enclose() const { return close != View::npos && open < close; }

    std::size_t open;
    std::size_t close;
};

View trimmedRight(View text)
{
    while (!text.empty() && QChar::isSpace(static_cast<uint>(text.back())))
        text.remove_suffix(1);
    return text;
}

// The field of \a text at \a start, empty behind the last; \a start moves on to
// the next.
View takeField(View text, std::size_t& start)
{
    if (start > text.size())
        return {};
    const std::size_t end = std::min(text.find(L'&', start), text.size());
    const View field = text.substr(start, end - start);
    start = end + 1;
    return field;
}

// "Drawing (dwg)" names no pattern, so its parentheses go; "Drawing (*.dwg)"
// does, and keeps them.
void appendWithPatterns(std::wstring& text, View description, View patterns)
{
    const Parentheses tail(description);
    if (tail.enclose() && description.find(L'*') == View::npos)
        description = description.substr(0, tail.open);
    if (Parentheses(description).none())
        text.append(trimmedRight(description)).append(L" (").append(patterns).append(L")");
    else
        text.append(description);
}

// The entry is written behind what there is and then put right where it stands,
// so that a list of any length needs no memory but its own.
void appendEntry(std::wstring& converted, View description, View patterns)
{
    const std::size_t start = converted.size();
    appendWithPatterns(converted, description, patterns);
    const View entry = View(converted).substr(start);
    const Parentheses ends(entry);
    if (!ends.enclose())
        return;
    const std::size_t open = start + ends.open;
    const std::size_t name = start + trimmedRight(entry.substr(0, ends.open)).size();
    converted.resize(start + ends.close + 1);
    const auto separates = [](wchar_t character) { return character == L';' || character == L','; };
    std::replace_if(converted.begin() + static_cast<std::ptrdiff_t>(open), converted.end(),
                    separates, L' ');
    converted.replace(name, open - name, L" ");
}

} // namespace

CVyString CVyUtils::ConvertToQtFilter(const CVyString& filter)
{
    const View text(filter.c_str(), static_cast<std::size_t>(filter.getLength()));
    std::wstring converted;
    converted.reserve(2 * text.size());
    for (std::size_t start = 0; start <= text.size();) {
        const View description = takeField(text, start);
        const View patterns = takeField(text, start);
        if (description.empty() && patterns.empty())
            continue;
        appendEntry(converted, description, patterns);
        converted.append(L"&").append(patterns).append(L"&");
    }
    converted += L'&';
    return CVyString(std::move(converted));
}
