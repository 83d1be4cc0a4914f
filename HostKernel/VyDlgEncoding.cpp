// SPDX-License-Identifier: MIT
#include "VyDlgEncoding.h"

#include "VyCodePageList.h"
#include "VyDxfText.h"
#include "VyFileNameLabel.h"
#include "VySystemCodePage.h"
#include "VyTextSample.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCodec>
#include <QTextDocument>
#include <QtMath>

namespace {

constexpr int sampleLines = 3;

// Where GetCodepage() points: one object for each row of the list of pages.
OdCodePageId* lastingId(const CVyCodePage& page)
{
    static std::vector<OdCodePageId> ids = [] {
        std::vector<OdCodePageId> all;
        for (const CVyCodePage& row : VyCodePages())
            all.push_back(row.id);
        return all;
    }();
    return &ids.at(static_cast<std::size_t>(&page - VyCodePages().data()));
}

OdCodePageId systemPage()
{
    return VySystemCodePage(QTextCodec::codecForLocale()->name(), QLocale::system());
}

QList<QByteArray> textsOf(const QString& path)
{
    return QFileInfo(path).isAbsolute() ? VyDxfText::read(path) : QList<QByteArray>();
}

template <class Widget>
Widget* named(const char* name, Widget* widget)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

// The text without its mnemonic, which languages without letters have in parentheses.
QString plainText(const QString& text)
{
    static const QRegularExpression marks(QStringLiteral(R"(\(&.\)|[&:\x{ff1a}])"));
    return QString(text).remove(marks).trimmed();
}

QLabel* caption(const char* name, const QString& text, QWidget* buddy)
{
    auto* label = named(name, new QLabel(text, buddy->parentWidget()));
    label->setBuddy(buddy);
    buddy->setAccessibleName(plainText(text));
    return label;
}

void makeSampleField(QPlainTextEdit& field)
{
    field.setReadOnly(true);
    field.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const double margins = 2 * (field.frameWidth() + field.document()->documentMargin());
    field.setFixedHeight(sampleLines * field.fontMetrics().lineSpacing() + qCeil(margins));
}

} // namespace

CVyDlgEncoding::CVyDlgEncoding(QWidget* parent, const CVyString& fileName)
    : QDialog(parent)
    , m_texts(textsOf(fileName))
    , m_search(named("search", new QLineEdit(this)))
    , m_pages(named("codePages", new CVyCodePageList(this)))
    , m_sample(named("sample", new QPlainTextEdit(this)))
    , m_note(named("note", new QLabel(this)))
    , m_readOnly(named("readOnly", new QCheckBox(tr("Open &read-only"), this)))
{
    setObjectName(QStringLiteral("encodingDialog"));
    setWindowTitle(tr("Open with Encoding"));
    m_search->setClearButtonEnabled(true);
    m_search->setPlaceholderText(tr("Language, name or number"));
    makeSampleField(*m_sample);
    m_note->setWordWrap(true);
    m_note->setMinimumHeight(m_note->fontMetrics().lineSpacing());
    addControls(fileName);
    connectControls();
    m_pages->choose(systemPage());
    m_search->setFocus();
}

// From top to bottom, which is also the order of the Tab key.
void CVyDlgEncoding::addControls(const QString& path)
{
    auto* file = named("fileName", new CVyFileNameLabel(path, this));
    file->setVisible(!path.isEmpty());
    auto* buttons = named("buttons", new QDialogButtonBox(this));
    m_ok = named("ok", buttons->addButton(QDialogButtonBox::Ok));
    named("cancel", buttons->addButton(QDialogButtonBox::Cancel));

    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(caption("searchCaption", tr("&Search:"), m_search));
    searchRow->addWidget(m_search, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(file);
    rows->addLayout(searchRow);
    rows->addWidget(caption("codePagesCaption", tr("&Encoding of the drawing's text:"), m_pages));
    rows->addWidget(m_pages, 1);
    rows->addWidget(caption("sampleCaption",
                            m_texts.isEmpty() ? tr("&Typical text in this encoding:")
                                              : tr("&Text of the drawing in this encoding:"),
                            m_sample));
    rows->addWidget(m_sample);
    rows->addWidget(m_note);
    rows->addWidget(m_readOnly);
    rows->addWidget(buttons);
}

void CVyDlgEncoding::connectControls()
{
    m_search->installEventFilter(this);
    m_pages->installEventFilter(this);
    auto* buttons = findChild<QDialogButtonBox*>();
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(m_search, SIGNAL(textChanged(QString)), this, SLOT(onSearchChanged(QString)));
    connect(m_pages, SIGNAL(itemSelectionChanged()), this, SLOT(onPageChanged()));
    // Not itemActivated(): where one click activates, looking at a page would be
    // choosing it.
    connect(m_pages, SIGNAL(itemDoubleClicked(QListWidgetItem*)), this, SLOT(accept()));
}

OdCodePageId* CVyDlgEncoding::GetCodepage() const
{
    const CVyCodePage* const page = m_pages->chosen();
    return page ? lastingId(*page) : nullptr;
}

bool CVyDlgEncoding::IsReadOnly() const
{
    return m_readOnly->isChecked();
}

void CVyDlgEncoding::onSearchChanged(const QString& typed)
{
    m_pages->narrow(typed);
    m_search->setAccessibleDescription(m_pages->chosen() ? QString()
                                                         : tr("No encoding matches the search."));
}

void CVyDlgEncoding::onPageChanged()
{
    const CVyCodePage* const page = m_pages->chosen();
    QString text;
    QString note;
    if (page && VyTextSample::canDecode(*page)) {
        text = m_texts.isEmpty() ? VyTextSample::typical(*page)
                                 : VyTextSample::decoded(*page, m_texts);
        if (text.contains(QChar(QChar::ReplacementCharacter)))
            note = tr("Not all of this text exists in this encoding.");
    } else if (page) {
        note = tr("It cannot be shown here, but can be chosen.");
    }
    m_sample->setPlainText(text);
    m_sample->setAccessibleDescription(note);
    m_note->setText(note);
    m_ok->setEnabled(page);
}

bool CVyDlgEncoding::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (watched == m_search)
            return searchTakes(key);
        if (watched == m_pages)
            return listTakes(key);
    }
    return QDialog::eventFilter(watched, event);
}

// Down leads from the field into the list below it, to the chosen page; the other
// keys that move in a list do so at once.
bool CVyDlgEncoding::searchTakes(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
        if (m_search->text().isEmpty())
            return false;
        m_search->clear();
        return true;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(m_pages, &event);
        Q_FALLTHROUGH();
    case Qt::Key_Down:
        if (m_pages->chosen())
            m_pages->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        return false;
    }
}

// Typing in the list goes on with the search.
bool CVyDlgEncoding::listTakes(QKeyEvent& event)
{
    const bool isCommand =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = event.text();
    if (isCommand || text.isEmpty() || !text.at(0).isPrint() || text.at(0).isSpace())
        return false;
    m_search->setFocus(Qt::OtherFocusReason);
    QApplication::sendEvent(m_search, &event);
    return true;
}
