// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "StyleOption.h"
#include "VyUtils.h"

#include <QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace CommandLine {

namespace {

struct OptionText
{
    const char* names; // separated by commas
    const char* description;
    const char* valueName; // empty: the option is a switch
};

constexpr OptionText OptionTexts[] = {
    {"title", "Title of the window.", "text"},
    {"filter", "The file types, for example \"Drawings&*.dwg;*.dxf&All files&*.*\".", "types"},
    {"type-index", "The type that is chosen at first, counted from 0.", "number"},
    {"start", "Folder to show, or file to preset; may also follow the request.", "path"},
    {"default-extension", "Given to names that are typed without one.", "extension"},
    {"template", "new: the template that is preset.", "name"},
    {"template-folder", "Where the drawing templates are.", "folder"},
    {"multiple", "open: several files may be chosen.", ""},
    {"modes", "open, new: offer modes. save: keep the title.", ""},
    {"no-preview", "open: no preview and no mode menu.", ""},
    {"open-only", "open: offer no mode but plain opening.", ""},
    {"no-template-folder", "open: template types do not change the folder.", ""},
    {"parent", "Number of the window that the dialog belongs to, decimal or 0x...", "window"},
    {"expert-level", "From 2 on files are overwritten without asking.", "number"},
    {"0,null", "End each path with a zero byte instead of a line end.", ""},
    {"json", "Print the whole answer as one JSON object.", ""},
    {"h,help", "Print this help.", ""},
    {"version", "Print the version.", ""},
};

struct RequestName
{
    const char* name;
    CVyUserIO::_FileNameType type;
};

constexpr RequestName Requests[] = {
    {"open", CVyUserIO::FileNameOpen},
    {"save", CVyUserIO::FileNameSave},
    {"new", CVyUserIO::FileNameNew},
};

struct QualifierName
{
    const char* name;
    CVyUserIO::_FileNameType bit;
};

constexpr QualifierName Qualifiers[] = {
    {"no-preview", CVyUserIO::FileNameNoPreview},
    {"open-only", CVyUserIO::FileNameOpenOnly},
    {"no-template-folder", CVyUserIO::FileNameNoTemplateFolder},
};

void configure(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Asks for file names in a drawing program's file dialog and prints them."));
    parser.addPositionalArgument(QStringLiteral("request"),
                                 QStringLiteral("What to ask for: open, save or new."),
                                 QStringLiteral("open|save|new"));
    parser.addPositionalArgument(QStringLiteral("path"), QStringLiteral("The same as --start."),
                                 QStringLiteral("[path]"));
    parser.addOptions(options());
}

std::optional<QString> valueOf(const QCommandLineParser& parser, const char* name)
{
    const QString option = QString::fromLatin1(name);
    return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
}

// The functions below each read one thing. They return what is wrong with it,
// or nothing.

QString readRequest(const QCommandLineParser& parser, Options& options)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        return QStringLiteral("no request is given: open, save or new");
    const QString& name = positional.constFirst();
    const auto* found =
        std::find_if(std::begin(Requests), std::end(Requests),
                     [&](const RequestName& each) { return name == QLatin1String(each.name); });
    if (found == std::end(Requests))
        return QStringLiteral("'%1' is no request: open, save or new").arg(name);
    unsigned type = found->type;
    for (const QualifierName& each : Qualifiers)
        type |= parser.isSet(QString::fromLatin1(each.name)) ? each.bit : 0U;
    options.type = static_cast<CVyUserIO::_FileNameType>(type);
    return {};
}

QString readStartPath(const QCommandLineParser& parser, Options& options)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 2)
        return QStringLiteral("'%1' is one argument too many").arg(positional.at(2));
    const std::optional<QString> start = valueOf(parser, "start");
    if (start && positional.size() > 1)
        return QStringLiteral("the start path is given twice: '%1' and '%2'")
            .arg(*start, positional.at(1));
    options.startPath = start ? *start : positional.value(1);
    return {};
}

QString readStyle(const QCommandLineParser& parser, Options& options)
{
    return StyleOption::read(parser, options.style);
}

// Whether a type with these patterns has an extension, in the module's reading:
// what follows the first "." of a pattern, up to the first pattern without one.
bool hasExtension(const QString& patterns)
{
    const QStringList all = patterns.split(QLatin1Char(';'));
    for (const QString& pattern : all) {
        const int dot = pattern.indexOf(QLatin1Char('.'));
        if (dot < 0)
            return false;
        if (dot + 1 < pattern.size())
            return true;
    }
    return false;
}

bool isOneType(const QString& entry)
{
    return entry.split(QLatin1Char(';'), Qt::SkipEmptyParts).size() == 1;
}

// A native open panel finds the extensions of a type by its place in the list,
// and stops the program where there are not as many of the one as of the other.
QString faultInOpenPanel(const QString& filter)
{
    const QString converted = CVyUtils::ConvertToQtFilter(filter);
    const QStringList fields = converted.split(QLatin1Char('&'));
    for (int i = 0; i + 1 < fields.size(); i += 2) {
        const QString& entry = fields.at(i);
        if (entry.isEmpty())
            continue;
        if (!isOneType(entry))
            return QStringLiteral("the ';' in '%1' would part it into several types").arg(entry);
        if (!hasExtension(fields.at(i + 1)))
            return QStringLiteral("'%1' has no extension; '*.*' stands for any file").arg(entry);
    }
    return {};
}

QString readFilter(const QCommandLineParser& parser, Options& options)
{
    options.filter = valueOf(parser, "filter");
    if (options.style != CVyFileDialog::StyleNative || !(options.type & CVyUserIO::FileNameOpen))
        return {};
    const QString fault = faultInOpenPanel(options.filter.value_or(QString()));
    return fault.isEmpty() ? QString()
                           : QLatin1String("--filter: no type for a native open panel: ") + fault;
}

QString readForm(const QCommandLineParser& parser, Options& options)
{
    const bool null = parser.isSet(QStringLiteral("null"));
    const bool json = parser.isSet(QStringLiteral("json"));
    if (null && json)
        return QStringLiteral("--null and --json exclude each other");
    if (null)
        options.form = Options::Form::NullSeparated;
    if (json)
        options.form = Options::Form::Json;
    return {};
}

QString readNumber(const QCommandLineParser& parser, const char* name, std::optional<int>& number)
{
    const std::optional<QString> text = valueOf(parser, name);
    if (!text)
        return {};
    bool ok = false;
    number = text->toInt(&ok);
    if (ok)
        return {};
    return QStringLiteral("--%1: '%2' is no whole number from -2147483648 to 2147483647")
        .arg(QLatin1String(name), *text);
}

QString readTypeIndex(const QCommandLineParser& parser, Options& options)
{
    return readNumber(parser, "type-index", options.typeIndex);
}

QString readExpertLevel(const QCommandLineParser& parser, Options& options)
{
    return readNumber(parser, "expert-level", options.expertLevel);
}

QString readParent(const QCommandLineParser& parser, Options& options)
{
    const std::optional<QString> text = valueOf(parser, "parent");
    if (!text)
        return {};
    bool ok = false;
    const bool hexadecimal = text->startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    options.parentWindow = text->toUInt(&ok, hexadecimal ? 16 : 10);
    if (ok)
        return {};
    return QStringLiteral("--parent: '%1' is no window number from 0 to 4294967295").arg(*text);
}

void readTexts(const QCommandLineParser& parser, Options& options)
{
    options.title = parser.value(QStringLiteral("title"));
    options.defaultExtension = parser.value(QStringLiteral("default-extension"));
    options.templateFolder = parser.value(QStringLiteral("template-folder"));
    options.templateName = valueOf(parser, "template");
    options.multiple = parser.isSet(QStringLiteral("multiple"));
    if (parser.isSet(QStringLiteral("modes")))
        options.flags = CVyUserIO::FileNameModeChoices;
}

} // namespace

QString read(QCommandLineParser& parser, const QStringList& arguments, Options::Action& action)
{
    if (!parser.parse(arguments)) {
        QString error = parser.errorText();
        error.chop(1); // the full stop
        return error;
    }
    if (parser.isSet(QStringLiteral("help")))
        action = Options::Action::Help;
    else if (parser.isSet(QStringLiteral("version")))
        action = Options::Action::Version;
    return {};
}

Parsed parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    configure(parser);
    Parsed parsed;
    parsed.error = read(parser, arguments, parsed.options.action);
    if (!parsed.error.isEmpty() || parsed.options.action != Options::Action::Ask)
        return parsed;
    readTexts(parser, parsed.options);
    for (const auto read : {readRequest, readStartPath, readStyle, readFilter, readForm,
                            readTypeIndex, readExpertLevel, readParent}) {
        if (parsed.error.isEmpty())
            parsed.error = read(parser, parsed.options);
    }
    return parsed;
}

QList<QCommandLineOption> options()
{
    QList<QCommandLineOption> list{StyleOption::option()};
    for (const OptionText& each : OptionTexts)
        list.append({QString::fromLatin1(each.names).split(QLatin1Char(',')),
                     QString::fromLatin1(each.description), QString::fromLatin1(each.valueName)});
    return list;
}

QString helpText()
{
    QCommandLineParser parser;
    configure(parser);
    return parser.helpText() +
           QStringLiteral("\nExit status: 0 accepted, 1 cancelled, 2 wrong usage, 3 failure.\n");
}

QString versionText()
{
    return QStringLiteral("vyfiledialog " VY_VERSION "\n");
}

} // namespace CommandLine
