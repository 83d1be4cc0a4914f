// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// File names in the texts of menus and tabs.
namespace MenuText {

/// \a name as it stands: none of its characters is a mnemonic.
QString escaped(const QString& name);

/// \a name with the digit of its place in front, which is its mnemonic up to the
/// ninth; \a index counts from 0.
QString numbered(int index, const QString& name);

} // namespace MenuText
