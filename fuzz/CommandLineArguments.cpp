// SPDX-License-Identifier: MIT
// The command's arguments, parted by zeros as the system parts them.
#include "CommandLine.h"
#include "Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QStringList arguments =
        QStringList{QStringLiteral("vyfiledialog")} + Fuzz::text(data, size).split(QChar(0));
    const CommandLine::Parsed parsed = CommandLine::parse(arguments);
    Fuzz::require(CommandLine::parse(arguments).error == parsed.error, "the same each time");
    return 0;
}
