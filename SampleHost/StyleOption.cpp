// SPDX-License-Identifier: MIT
#include "StyleOption.h"

#include "HostPlatform.h"

#include <QCommandLineParser>

namespace StyleOption {

QCommandLineOption option()
{
    return {QStringLiteral("style"),
            QStringLiteral("Which dialog to show: qt or native (without it: %1).")
                .arg(QLatin1String(name(HostPlatform::defaultStyle()))),
            QStringLiteral("style")};
}

QString read(const QCommandLineParser& parser, CVyFileDialog::_Style& style)
{
    style = HostPlatform::defaultStyle();
    if (!parser.isSet(QStringLiteral("style")))
        return {};
    const QString value = parser.value(QStringLiteral("style"));
    for (const CVyFileDialog::_Style each : {CVyFileDialog::StyleQt, CVyFileDialog::StyleNative}) {
        if (value == QLatin1String(name(each))) {
            style = each;
            return {};
        }
    }
    return QStringLiteral("--style: '%1' is no style: qt or native").arg(value);
}

const char* name(CVyFileDialog::_Style style)
{
    return style == CVyFileDialog::StyleNative ? "native" : "qt";
}

} // namespace StyleOption
