// SPDX-License-Identifier: MIT
// The icons and type names in the dialog's list, against Qt's own, and how often
// Qt is asked for them.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VyFileIcons.h"

#include <QFileSystemModel>
#include <QListView>
#include <QtTest>

#include <memory>

namespace {

// Qt's own, which notes what it is asked for. Files "own.*" have an icon of their own.
class CountingProvider : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;

    QIcon icon(const QFileInfo& info) const override
    {
        icons.append(info.fileName());
        return info.completeBaseName() == "own" ? ownIcon : QFileIconProvider::icon(info);
    }

    QString type(const QFileInfo& info) const override
    {
        types.append(info.fileName());
        return QFileIconProvider::type(info);
    }

    mutable QStringList icons;
    mutable QStringList types;
    QIcon ownIcon{QPixmap(16, 16)};
};

struct Files
{
    CountingProvider qt;
    QFileSystemModel model;
    CVyFileIcons* icons = nullptr;

    Files()
    {
        model.setIconProvider(&qt);
        icons = new CVyFileIcons(&model, {});
        qt.icons.clear();
    }
};

QImage picture(const QIcon& icon)
{
    return icon.pixmap(16).toImage();
}

} // namespace

class FileIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }
    void areThoseOfQt_data();
    void areThoseOfQt();
    void ofALinkAreItsOwn();
    void areAskedForOnceASuffix();
    void ofTheirOwnAreAskedForEachTime();
    void areInTheDialog();
    void foldersOnTheWayAreNotAskedForAgain();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void FileIconsTest::initTestCase()
{
    for (const char* name : {"plan.dwg", "other.dwg", "plan.DWG", "plan.dxf", "plan", ".dwg",
                             "plan.tar.gz", "plan.", "own.dwg", "own.own", "two.own"}) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir().mkdir(path("folder.dwg")));
    QVERIFY(QFile::link(path("plan.dwg"), path("link.dwg")));
    QVERIFY(QFile::link(path("folder.dwg"), path("folder link.dwg")));
    QVERIFY(QFile::link(path("nowhere"), path("broken.dwg")));
}

void FileIconsTest::areThoseOfQt_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"plan.dwg", "other.dwg", "plan.DWG", "plan.dxf", "plan", ".dwg", "plan.tar.gz", "plan.",
          "folder.dwg", "link.dwg", "folder link.dwg", "broken.dwg", "missing.dwg", ".", ".."})
        QTest::newRow(name) << path(name);
    QTest::newRow("root") << QDir::rootPath();
    QTest::newRow("home") << QDir::homePath();
    QTest::newRow("device") << "/dev/null";
    QTest::newRow("no path") << "";
}

void FileIconsTest::areThoseOfQt()
{
    QFETCH(QString, name);
    const QFileIconProvider qt;
    const Files files;
    for (int time = 0; time < 2; ++time) {
        const QFileInfo info(name);
        QCOMPARE(picture(files.icons->icon(info)), picture(qt.icon(info)));
        QCOMPARE(files.icons->type(info), qt.type(info));
    }
    for (const auto kind : {QFileIconProvider::Computer, QFileIconProvider::Folder,
                            QFileIconProvider::File, QFileIconProvider::Drive})
        QCOMPARE(picture(files.icons->icon(kind)), picture(qt.icon(kind)));
}

// A link after what it leads to, of the same suffix.
void FileIconsTest::ofALinkAreItsOwn()
{
    const QFileIconProvider qt;
    const Files files;
    for (const char* name : {"plan.dwg", "link.dwg", "folder.dwg", "folder link.dwg"}) {
        const QFileInfo info(path(name));
        QCOMPARE(picture(files.icons->icon(info)), picture(qt.icon(info)));
    }
    QVERIFY(picture(qt.icon(QFileInfo(path("link.dwg")))) !=
            picture(qt.icon(QFileInfo(path("plan.dwg")))));
}

void FileIconsTest::areAskedForOnceASuffix()
{
    const Files files;
    for (const char* name : {"plan.dwg", "other.dwg", "plan.dxf", "plan.dwg", "folder.dwg"}) {
        files.icons->icon(QFileInfo(path(name)));
        files.icons->type(QFileInfo(path(name)));
    }
    const QStringList asked{"plan.dwg", "plan.dxf", "folder.dwg"};
    QCOMPARE(files.qt.icons, asked);
    QCOMPARE(files.qt.types, asked);
}

void FileIconsTest::ofTheirOwnAreAskedForEachTime()
{
    const Files files;
    const QFileInfo own(path("own.own"));
    const QFileInfo other(path("two.own"));
    QCOMPARE(files.icons->icon(own).cacheKey(), files.qt.ownIcon.cacheKey());
    QVERIFY(files.icons->icon(other).cacheKey() != files.qt.ownIcon.cacheKey());
    QCOMPARE(files.icons->icon(QFileInfo(path("own.dwg"))).cacheKey(), files.qt.ownIcon.cacheKey());
}

void FileIconsTest::areInTheDialog()
{
    const auto shown = [](const QFileDialog& dialog) {
        const auto* list = dialog.findChild<QListView*>("listView");
        QMap<QString, QPair<QString, QImage>> files;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
            const QModelIndex name = list->model()->index(row, 0, list->rootIndex());
            files.insert(name.data().toString(),
                         {name.siblingAtColumn(2).data().toString(),
                          picture(name.data(Qt::DecorationRole).value<QIcon>())});
        }
        return files;
    };
    QFileDialog bare(nullptr, QString(), m_folder.path(), "Any (*)");
    bare.setOption(QFileDialog::DontUseNativeDialog);
    QTRY_COMPARE(shown(bare).size(), 13);
    const auto expected = shown(bare);
    QCOMPARE(expected.value("plan.dwg").first, QString("dwg File"));

    HostRequest request;
    request.start = m_folder.path();
    request.filter = "Any&*";
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTRY_COMPARE(shown(dialog).size(), expected.size());
        QCOMPARE(shown(dialog), expected);
        dialog.reject();
    })});
}

void FileIconsTest::foldersOnTheWayAreNotAskedForAgain()
{
    CountingProvider qt;
    QFileSystemModel model;
    model.setIconProvider(&qt);
    const QModelIndex shown = model.setRootPath(m_folder.path());
    const QIcon before = model.fileIcon(shown);
    qt.icons.clear();
    const auto* icons = new CVyFileIcons(&model, shown);
    QCOMPARE(qt.icons, QStringList());
    QCOMPARE(model.fileIcon(shown).cacheKey(), before.cacheKey());
    icons->icon(QFileInfo(m_folder.path())); // later, when the folder has changed
    QCOMPARE(qt.icons.size(), 1);
}

QTEST_MAIN(FileIconsTest)
#include "FileIconsTest.moc"
