// SPDX-License-Identifier: MIT
#include "Answer.h"

#include <QFile>

namespace {

QString escaped(QChar unit)
{
    return QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
}

QString quoted(const QString& text)
{
    QString result(QLatin1Char('"'));
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const bool pair =
            unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair)
            result += text.midRef(i++, 2);
        else if (unit == QLatin1Char('"') || unit == QLatin1Char('\\'))
            result += QLatin1Char('\\') + unit;
        else if (unit < QLatin1Char(' ') || unit.isSurrogate())
            result += escaped(unit);
        else
            result += unit;
    }
    return result + QLatin1Char('"');
}

QString quotedOrNull(const char* name)
{
    return name ? quoted(QString::fromLatin1(name)) : QStringLiteral("null");
}

// Written here and not with QJsonDocument, which replaces lone surrogates.
QByteArray json(const Answer& answer)
{
    QStringList paths;
    for (const QString& path : answer.paths)
        paths.append(quoted(path));
    const QString typeIndex =
        answer.typeIndex ? QString::number(*answer.typeIndex) : QStringLiteral("null");
    const QString text = QLatin1String("{\"status\":") + QString::number(answer.status) +
                         QLatin1String(",\"mode\":{\"name\":") +
                         quotedOrNull(modeName(answer.mode)) + QLatin1String(",\"number\":") +
                         QString::number(answer.mode) + QLatin1String("},\"paths\":[") +
                         paths.join(QLatin1Char(',')) + QLatin1String("],\"typeIndex\":") +
                         typeIndex + QLatin1String(",\"codePage\":") +
                         quotedOrNull(VyCodePageName(answer.codePage)) + QLatin1String("}\n");
    return text.toUtf8();
}

QByteArray listed(const QStringList& paths, char end)
{
    QByteArray bytes;
    for (const QString& path : paths)
        bytes += QFile::encodeName(path) + end;
    return bytes;
}

} // namespace

const char* modeName(CVyUserIO::_FileNameRetVal mode)
{
    switch (mode) {
    case CVyUserIO::NewFromTemplate:
        return "new-from-template";
    case CVyUserIO::NewImperial:
        return "new-imperial";
    case CVyUserIO::NewMetric:
        return "new-metric";
    case CVyUserIO::Open:
        return "open";
    case CVyUserIO::OpenReadOnly:
        return "open-read-only";
    case CVyUserIO::Save:
        return "save";
    }
    return nullptr;
}

const char* statusName(int status)
{
    switch (status) {
    case VyStatus::Accepted:
        return "accepted";
    case VyStatus::NothingSelected:
        return "nothing-selected";
    case VyStatus::Failed:
        return "failed";
    case VyStatus::Cancelled:
        return "cancelled";
    default:
        return nullptr;
    }
}

ExitStatus exitStatus(int status)
{
    switch (status) {
    case VyStatus::Accepted:
    case VyStatus::NothingSelected:
        return ExitAccepted;
    case VyStatus::Cancelled:
        return ExitCancelled;
    default:
        return ExitFailure;
    }
}

QByteArray format(const Answer& answer, Options::Form form)
{
    if (form == Options::Form::Json)
        return json(answer);
    return listed(answer.paths, form == Options::Form::NullSeparated ? '\0' : '\n');
}

bool isLocal(const QString& path)
{
    return QString::fromLocal8Bit(path.toLocal8Bit()) == path;
}
