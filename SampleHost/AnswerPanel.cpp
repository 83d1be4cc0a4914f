// SPDX-License-Identifier: MIT
#include "AnswerPanel.h"

#include "FileTypes.h"
#include "StyleOption.h"

#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVariant>

namespace {

// "open-read-only (768)"
QString named(const char* name, long long number)
{
    return QStringLiteral("%1 (%2)").arg(QLatin1String(name ? name : "?")).arg(number);
}

QString typeText(const Options& options, int index)
{
    const std::vector<FileType> types = fileTypes(options.filter.value_or(QString()));
    const bool isListed = index >= 0 && index < static_cast<int>(types.size());
    const QString description =
        isListed ? types[static_cast<std::size_t>(index)].description : QStringLiteral("?");
    return QStringLiteral("%1 (%2)").arg(index).arg(description);
}

// A screen reader is told the row's title, too.
void setText(QLabel* value, const QString& text)
{
    const QString shown = text.isEmpty() ? AnswerPanel::tr("none") : text;
    value->setText(shown);
    value->setAccessibleName(value->property("title").toString() + QLatin1String(": ") + shown);
}

} // namespace

AnswerPanel::AnswerPanel(QWidget* parent)
    : QDockWidget(tr("Answer"), parent)
{
    setObjectName(QStringLiteral("answerPanel"));
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("answerArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* page = new QWidget(area);
    page->setObjectName(QStringLiteral("answerPage"));
    auto* rows = new QFormLayout(page);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_style = addRow(rows, "answerStyle", tr("Style"));
    m_status = addRow(rows, "answerStatus", tr("Status"));
    m_mode = addRow(rows, "answerMode", tr("Mode"));
    m_paths = addRow(rows, "answerPaths", tr("Paths"));
    m_type = addRow(rows, "answerType", tr("Type"));
    m_templateName = addRow(rows, "answerTemplate", tr("Template"));
    m_codePage = addRow(rows, "answerCodePage", tr("Code page"));
    setText(m_status, tr("no request yet"));
    area->setWidget(page);
    setWidget(area);
}

QLabel* AnswerPanel::addRow(QFormLayout* rows, const char* name, const QString& title)
{
    auto* value = new QLabel(rows->parentWidget());
    value->setObjectName(QLatin1String(name));
    value->setProperty("title", title);
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    value->setWordWrap(true);
    auto* label = new QLabel(title + QLatin1Char(':'), rows->parentWidget());
    label->setObjectName(value->objectName() + QLatin1String("Title"));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop); // beside the first line
    rows->addRow(label, value);
    setText(value, QString());
    return value;
}

void AnswerPanel::showAnswer(const Options& options, const Answer& answer)
{
    setText(m_style, QLatin1String(StyleOption::name(options.style)));
    setText(m_status, named(statusName(answer.status), answer.status));
    setText(m_mode, named(modeName(answer.mode), answer.mode));
    QStringList paths;
    for (const QString& path : answer.paths)
        paths.append(QDir::toNativeSeparators(path));
    setText(m_paths, paths.join(QLatin1Char('\n')));
    setText(m_type, answer.typeIndex ? typeText(options, *answer.typeIndex) : QString());
    setText(m_templateName, answer.templateName.value_or(QString()));
    setText(m_codePage, QLatin1String(VyCodePageName(answer.codePage)));
}
