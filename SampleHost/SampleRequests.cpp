// SPDX-License-Identifier: MIT
// What the sample's window asks the dialogs for, and what it does with the answers.
#include "AnswerPanel.h"
#include "DialogMenu.h"
#include "DrawingTabs.h"
#include "LibraryMessages.h"
#include "SampleWindow.h"
#include "VyBookmarks.h"
#include "VySystemServices.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>

#include <algorithm>

namespace {

QString type(const QString& description, const QString& patterns)
{
    return description + QLatin1Char('&') + patterns;
}

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

Answer SampleWindow::request(Options options)
{
    options.parentWindow = winId();
    const LibraryMessages messages;
    Answer answer = ask(options);
    m_answer->showAnswer(options, answer);
    if (exitStatus(answer.status) != ExitFailure)
        return answer;
    if (options.style == CVyFileDialog::StyleNative) {
        m_dialogs->tellNativeFails(messages.last());
        tell(tr("The system's panel cannot be shown."),
             messages.last() + QLatin1String("\n\n") + tr("The Qt dialog is chosen now."));
    } else {
        tell(tr("The dialog cannot be shown."), messages.last());
    }
    return answer;
}

void SampleWindow::newDrawing()
{
    Options options = m_dialogs->options(CVyUserIO::FileNameNew);
    options.title = tr("New Drawing");
    options.filter = type(tr("Templates"), QStringLiteral("*.dwt")) + QLatin1Char('&') +
                     type(tr("Drawings"), QStringLiteral("*.dwg;*.dxf"));
    options.startPath = GetVySystemServices()->GetTemplateFolder();
    if (!m_template.isEmpty())
        options.templateName = m_template;
    const Answer answer = request(options);
    if (exitStatus(answer.status) != ExitAccepted)
        return;

    Drawing drawing = DrawingFiles::empty(answer.mode);
    if (answer.mode == CVyUserIO::NewFromTemplate) {
        const QString path = answer.paths.value(0);
        const QString fault = DrawingFiles::read(path, drawing);
        if (!fault.isEmpty()) {
            tell(tr("There is no new drawing."), shown(path) + QLatin1Char(' ') + fault);
            return;
        }
        m_template = drawing.name;
        drawing.path.clear();
        drawing.mode = answer.mode;
    }
    drawing.name = tr("Drawing %1").arg(++m_newDrawings);
    m_drawings->add(drawing);
}

Options SampleWindow::openOptions() const
{
    Options options = m_dialogs->options(CVyUserIO::FileNameOpen);
    options.filter =
        QStringList{type(tr("Drawings"), QStringLiteral("*.dwg;*.dxf")),
                    type(tr("Templates"), QStringLiteral("*.dwt")),
                    type(tr("Pictures"), QStringLiteral("*.png;*.jpg;*.jpeg;*.bmp;*.svg")),
                    type(tr("All files"), QStringLiteral("*.*"))}
            .join(QLatin1Char('&'));
    options.startPath = startFolder();
    options.defaultExtension = QStringLiteral("dwg");
    return options;
}

void SampleWindow::open()
{
    Options options = openOptions();
    options.title = tr("Open Drawing");
    openAnswered(request(options));
}

void SampleWindow::openSeveral()
{
    Options options = openOptions();
    options.title = tr("Open Drawings");
    options.multiple = true;
    openAnswered(request(options));
}

void SampleWindow::openFiles(const QStringList& paths)
{
    Answer answer;
    answer.paths = paths;
    openAnswered(answer);
}

void SampleWindow::openAnswered(const Answer& answer)
{
    QStringList faults;
    for (const QString& path : answer.paths) {
        const QString fault = openFile(path, answer);
        if (!fault.isEmpty())
            faults.append(shown(path) + QLatin1Char(' ') + fault);
    }
    if (faults.size() == 1)
        tell(tr("A file could not be opened."), faults.constFirst());
    else if (!faults.isEmpty())
        tell(tr("%1 files could not be opened.").arg(faults.size()),
             faults.join(QLatin1Char('\n')));
}

// Answers why it cannot be opened, or nothing.
QString SampleWindow::openFile(const QString& path, const Answer& answer)
{
    if (DrawingView* view = m_drawings->find(path)) {
        m_drawings->setCurrentWidget(view);
    } else {
        Drawing drawing;
        QString fault = DrawingFiles::read(path, drawing);
        if (!fault.isEmpty())
            return fault;
        drawing.readOnly = answer.mode == CVyUserIO::OpenReadOnly;
        drawing.codePage = answer.codePage;
        m_drawings->add(drawing);
    }
    const QString opened = m_drawings->current()->drawing().path;
    m_folder = QFileInfo(opened).absolutePath();
    VyAddBookmark(shown(opened));
    return {};
}

void SampleWindow::openRecent(const VyBookmark& bookmark)
{
    const CVyBookmarkedFile file(bookmark);
    if (!file.path().isEmpty()) {
        openFiles({file.path()});
        return;
    }
    QMessageBox box(QMessageBox::Warning, tr("Open Recent"),
                    tr("%1 is not there any more.").arg(bookmark.path), QMessageBox::Cancel, this);
    box.setObjectName(QStringLiteral("gone"));
    box.setInformativeText(tr("It can be removed from the list of recent files."));
    QPushButton* remove = box.addButton(tr("&Remove from List"), QMessageBox::AcceptRole);
    remove->setObjectName(QStringLiteral("removeRecent"));
    box.setDefaultButton(remove);
    box.exec();
    if (box.clickedButton() == remove)
        VyRemoveBookmark(bookmark);
}

Options SampleWindow::saveOptions(const Drawing& drawing) const
{
    Options options = m_dialogs->options(CVyUserIO::FileNameSave);
    options.title = tr("Save Drawing As");
    const QStringList extensions = DrawingFiles::extensions(drawing);
    QStringList types;
    for (const QString& extension : extensions)
        types.append(type(DrawingFiles::typeName(extension), QLatin1String("*.") + extension));
    if (!types.isEmpty())
        options.filter = types.join(QLatin1Char('&'));
    options.defaultExtension = extensions.value(0);
    const QString suffix = QFileInfo(drawing.path).suffix().toLower();
    options.typeIndex = std::max(0, extensions.indexOf(suffix));
    options.startPath = drawing.path;
    if (drawing.path.isEmpty())
        options.startPath = startFolder() + QLatin1Char('/') + drawing.name + QLatin1Char('.') +
                            extensions.value(0);
    return options;
}

void SampleWindow::saveAs()
{
    DrawingView* const view = m_drawings->current();
    Drawing drawing = view->drawing();
    const Answer answer = request(saveOptions(drawing));
    if (answer.paths.isEmpty() || m_drawings->indexOf(view) < 0) // it was closed meanwhile
        return;
    const QString path = answer.paths.constFirst();
    const DrawingView* const open = m_drawings->find(path);
    QString fault;
    if (open && open != view)
        fault = tr("is open in another tab");
    else if (open && drawing.readOnly)
        fault = tr("was opened read-only");
    else
        fault = DrawingFiles::write(path, drawing);
    if (!fault.isEmpty()) {
        tell(tr("The drawing was not saved."), shown(path) + QLatin1Char(' ') + fault);
        return;
    }
    m_folder = QFileInfo(drawing.path).absolutePath();
    VyAddBookmark(shown(drawing.path));
    m_drawings->replace(view, drawing);
    statusBar()->showMessage(tr("Saved as %1").arg(shown(drawing.path)), 10000);
}

// Where the drawing in front is, else the last one, of this run or of another.
QString SampleWindow::startFolder() const
{
    const DrawingView* const view = m_drawings->current();
    if (view && !view->drawing().path.isEmpty())
        return QFileInfo(view->drawing().path).absolutePath();
    if (!m_folder.isEmpty())
        return m_folder;
    const QList<VyBookmark> bookmarks = VyBookmarks();
    QString last =
        bookmarks.isEmpty() ? QString() : QFileInfo(bookmarks.constFirst().path).absolutePath();
    if (!last.isEmpty() && QFileInfo(last).isDir())
        return last;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void SampleWindow::tell(const QString& text, const QString& more)
{
    QMessageBox box(QMessageBox::Warning, tr("VyFileDialogs Sample"), text, QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("message"));
    box.setInformativeText(more);
    box.exec();
}
