// SPDX-License-Identifier: MIT
#include "MenuText.h"

namespace MenuText {

QString escaped(const QString& name)
{
    QString text = name;
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString numbered(int index, const QString& name)
{
    const QString number = QString::number(index + 1);
    const QString mnemonic = index < 9 ? QLatin1Char('&') + number : number;
    return mnemonic + QLatin1Char(' ') + escaped(name);
}

} // namespace MenuText
