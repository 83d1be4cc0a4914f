// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialog.h"

#include <QCommandLineOption>
#include <QString>

class QCommandLineParser;

/// The option "--style" of the programs here, and the names of the styles.
namespace StyleOption {

QCommandLineOption option();

/// Reads the option, or takes the platform's style without it. Answers what is
/// wrong, or nothing.
QString read(const QCommandLineParser& parser, CVyFileDialog::_Style& style);

/// "qt" or "native".
const char* name(CVyFileDialog::_Style style);

} // namespace StyleOption
