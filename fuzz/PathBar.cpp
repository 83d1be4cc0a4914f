// SPDX-License-Identifier: MIT
// Paths as the row of folder buttons shows them.
#include "Fuzz.h"
#include "VyPathBar.h"

#include <QGuiApplication>

namespace {

const QGuiApplication& application()
{
    static int count = 1;
    static char name[] = "PathBar";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);
    return application;
}

void checkName(const QString& name, int width)
{
    const QString line = VyPathBar::singleLine(name);
    Fuzz::require(line.size() == name.size(), "a line has as many characters");
    Fuzz::require(!line.contains('\n') && !line.contains(QChar::LineSeparator), "is one line");
    Fuzz::require(VyPathBar::singleLine(line) == line, "is one already");

    static const QFontMetrics metrics(QGuiApplication::font());
    const QString shown = VyPathBar::fittingText(metrics, line, width);
    Fuzz::require(!shown.isEmpty() || line.isEmpty(), "something is shown");
    Fuzz::require(shown == line || VyPathBar::paddedWidth(metrics, line) > width,
                  "what fits is shown whole");
}

} // namespace

// The first byte is a width; then two paths, one a line.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    application();
    if (size == 0)
        return 0;
    const QStringList paths = Fuzz::text(data + 1, size - 1).split('\n');
    const QStringList names = VyPathBar::parts(paths.constFirst());
    const QStringList others = VyPathBar::parts(paths.value(1));
    Fuzz::require(!names.isEmpty() && !others.isEmpty(), "a folder at least");

    const int staying = VyPathBar::staying(names, others);
    Fuzz::require(staying >= 0 && staying <= names.size(), "as many stay as there are");
    for (int i = 0; i < std::min(staying, others.size()); ++i)
        Fuzz::require(names.at(i) == others.at(i), "what stays is right");

    QString before;
    for (int i = 0; i < names.size(); ++i) {
        const QString folder = VyPathBar::folderOf(names, i);
        Fuzz::require(folder.startsWith(before), "a folder lies in the one before");
        before = folder;
        checkName(names.at(i), VyPathBar::MinimumWidth + data[0]);
    }
    return 0;
}
