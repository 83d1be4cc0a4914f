// SPDX-License-Identifier: MIT
#include "HostRequest.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QComboBox>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QScopeGuard>
#include <QTreeView>
#include <QtTest>

namespace {

CVyUserIO::_FileNameType typeOf(const HostRequest& request)
{
    return static_cast<CVyUserIO::_FileNameType>(request.type);
}

CVyUserIO::_FileNameFlags flagsOf(const HostRequest& request)
{
    return static_cast<CVyUserIO::_FileNameFlags>(request.flags);
}

QModelIndex indexOf(QFileDialog& dialog, const QString& name)
{
    auto* model = dialog.findChild<QFileSystemModel*>();
    const QModelIndex index = model->index(dialog.directory().absoluteFilePath(name));
    return dialog.proxyModel() ? dialog.proxyModel()->mapFromSource(index) : index;
}

} // namespace

int HostRequest::getFileName(std::vector<DialogDriver::Step> steps)
{
    const DialogDriver driver(std::move(steps));
    const CVyString untouched(L"untouched");
    CVyString path = untouched;
    CVyString templateText(templateName);
    const auto keep = qScopeGuard([&] {
        if (path != untouched)
            paths = QStringList{path};
    });
    status = CVyFileDialog::GetFileName(
        &mode, &path, parent, typeOf(*this), CVyString(title), CVyString(defaultExtension),
        CVyString(filter), CVyString(start), withTypeIndex ? &typeIndex : nullptr,
        templateName.isNull() ? nullptr : &templateText, flagsOf(*this), &codePage);
    return status;
}

int HostRequest::getFileNames(std::vector<DialogDriver::Step> steps)
{
    const DialogDriver driver(std::move(steps));
    std::vector<CVyString> chosen(paths.begin(), paths.end());
    CVyString templateText(templateName);
    const auto keep = qScopeGuard([&] { paths = QStringList(chosen.begin(), chosen.end()); });
    status = CVyFileDialog::GetFileNames(
        &mode, &chosen, parent, typeOf(*this), CVyString(title), CVyString(defaultExtension),
        CVyString(filter), CVyString(start), withTypeIndex ? &typeIndex : nullptr,
        templateName.isNull() ? nullptr : &templateText, flagsOf(*this), &codePage);
    return status;
}

DialogDriver::Step onFileDialog(std::function<void(QFileDialog&)> work)
{
    return [work = std::move(work)](QDialog& dialog) {
        const QPointer<QDialog> guard(&dialog);
        auto* fileDialog = qobject_cast<QFileDialog*>(&dialog);
        if (fileDialog && QTest::qWaitForWindowActive(fileDialog))
            work(*fileDialog);
        else
            QTest::qFail("no file dialog became active", __FILE__, __LINE__);
        if (guard && QTest::currentTestFailed())
            dialog.reject();
    };
}

QStringList listedNames(QFileDialog& dialog)
{
    const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
        names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
    return names;
}

bool waitForFile(QFileDialog& dialog, const QString& name)
{
    return QTest::qWaitFor([&] {
        const QModelIndex index = indexOf(dialog, name);
        auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        return index.isValid() && list->rootIndex() == index.parent();
    });
}

bool clickFile(QFileDialog& dialog, const QString& name)
{
    if (!waitForFile(dialog, name))
        return false;
    auto* tree = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    QAbstractItemView* view = tree->isVisible() ? static_cast<QAbstractItemView*>(tree) : list;
    const QModelIndex index = indexOf(dialog, name);
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->visualRect(index).center());
    return view->currentIndex() == index;
}

// Without the focus QFileDialog takes what is typed for a name set by code, and
// keeps what was selected before.
void typeName(QFileDialog& dialog, const QString& name)
{
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const bool focused = QTest::qWaitFor([&] {
        dialog.activateWindow();
        edit->setFocus();
        return edit->hasFocus();
    });
    if (!focused)
        QTest::qFail("the name field does not take the focus", __FILE__, __LINE__);
    edit->selectAll();
    if (name.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, name);
}

void chooseType(QFileDialog& dialog, int index)
{
    auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    types->showPopup();
    types->view()->setCurrentIndex(types->model()->index(index, 0));
    QTest::keyClick(types->view(), Qt::Key_Return);
}

void typeAndAccept(QFileDialog& dialog, const QString& name)
{
    typeName(dialog, name);
    QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
}
