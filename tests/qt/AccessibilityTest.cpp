// SPDX-License-Identifier: MIT
// What a screen reader says of the controls that we add to Qt's dialog, and the order
// in which the Tab key goes through them.
#include "DrawingFolder.h"
#include "FolderButtons.h"
#include "HostRequest.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

namespace {

struct Spoken
{
    QAccessible::Role role;
    QString name;
    bool operator==(const Spoken& other) const { return role == other.role && name == other.name; }
};

Spoken spoken(QObject* object)
{
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(object);
    if (!interface)
        return {QAccessible::NoRole, {}};
    return {interface->role(), interface->text(QAccessible::Name)};
}

// Compared piece by piece, for a message that tells them apart.
void expectSpoken(QObject* object, QAccessible::Role role, const QString& name)
{
    QVERIFY(object);
    QCOMPARE(spoken(object).role, role);
    QCOMPARE(spoken(object).name, name);
}

// The widgets that the Tab key comes to, from the one that has the focus on.
QWidgetList tabChain(QWidget& dialog)
{
    QWidgetList chain;
    while (true) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        if (chain.contains(dialog.focusWidget()))
            return chain;
        chain.append(dialog.focusWidget());
    }
}

QPoint place(const QWidget* widget)
{
    return widget->mapTo(widget->window(), QPoint());
}

HostRequest requestFor(const QString& folder, unsigned type)
{
    HostRequest request;
    request.type = type;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = folder;
    request.filter = "Drawings&*.dwg;*.png";
    return request;
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void controlsOfOpenAreNamed();
    void controlsOfNewAreNamed();
    void elidedFolderTellsItsName();
    void tabFollowsReading_data();
    void tabFollowsReading();
};

void AccessibilityTest::controlsOfOpenAreNamed()
{
    DrawingFolder folder;
    folder.addPicture("a.png", QSize(40, 30), Qt::red);
    folder.addFolder("R&D plans");
    requestFor(folder.filePath("R&D plans"), CVyUserIO::FileNameOpen)
        .getFileName({onFileDialog([&](QFileDialog& dialog) {
            const QStringList names = folder.filePath("R&D plans").split('/');
            const QList<CVyDirPushButton*> folders = buttons(dialog);
            QCOMPARE(folders.size(), names.size());
            for (int i = 0; i < names.size(); ++i)
                expectSpoken(folders.at(i), QAccessible::Button, i ? names.at(i) : "/");

            dialog.setDirectory(folder.path());
            QVERIFY(clickFile(dialog, "a.png"));
            auto* preview = dialog.findChild<QLabel*>("previewLabel");
            QTRY_VERIFY(!preview->pixmap(Qt::ReturnByValue).isNull());
            expectSpoken(preview, QAccessible::Graphic, "Preview");
            expectSpoken(dialog.findChild<QLabel*>("previewCaption"), QAccessible::StaticText,
                         "Preview");

            auto* menu = dialog.findChild<QMenu*>("modeMenu");
            expectSpoken(menu, QAccessible::PopupMenu, "Open mode");
            QPushButton* open = nullptr;
            for (auto* button : dialog.findChildren<QPushButton*>()) {
                if (button->menu() == menu)
                    open = button;
            }
            expectSpoken(open, QAccessible::ButtonMenu, "Open");
            QAccessibleInterface* entries = QAccessible::queryAccessibleInterface(menu);
            QCOMPARE(entries->childCount(), 3);
            QCOMPARE(entries->child(1)->text(QAccessible::Name), QString("Open Read-Only"));
            QCOMPARE(entries->child(1)->role(), QAccessible::MenuItem);
            dialog.reject();
        })});
}

void AccessibilityTest::controlsOfNewAreNamed()
{
    const DrawingFolder folder;
    requestFor(folder.path(), CVyUserIO::FileNameNew)
        .getFileName({onFileDialog([](QFileDialog& dialog) {
            expectSpoken(dialog.findChild<QToolButton*>("openButton"), QAccessible::ButtonMenu,
                         "Open");
            expectSpoken(dialog.findChild<QMenu*>("modeMenu"), QAccessible::PopupMenu, "Open mode");
            dialog.reject();
        })});
}

void AccessibilityTest::elidedFolderTellsItsName()
{
    DrawingFolder folder;
    const QString name(200, 'x');
    folder.addFolder(name);
    requestFor(folder.filePath(name), CVyUserIO::FileNameOpen)
        .getFileName({onFileDialog([&](QFileDialog& dialog) {
            CVyDirPushButton* const last = buttons(dialog).last();
            QTRY_VERIFY(last->shownName() != name);
            expectSpoken(last, QAccessible::Button, name);
            QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(last);
            QVERIFY(interface->text(QAccessible::Description).contains(name));
            dialog.reject();
        })});
}

void AccessibilityTest::tabFollowsReading_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew);
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave);
}

// Row by row, and from left to right in each; the column of buttons at the lower right is
// read after the fields beside it.
void AccessibilityTest::tabFollowsReading()
{
    QFETCH(unsigned, type);
    const DrawingFolder folder;
    requestFor(folder.path(), type).getFileName({onFileDialog([](QFileDialog& dialog) {
        const QList<CVyDirPushButton*> folders = buttons(dialog);
        folders.first()->setFocus();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab);
        QWidgetList chain = tabChain(dialog);
        QVERIFY(chain.size() > folders.size() + 5);
        for (int i = 0; i < folders.size(); ++i)
            QCOMPARE(chain.at(i), folders.at(i));
        QStringList names;
        for (const QWidget* widget : qAsConst(chain))
            names.append(widget->objectName());
        const QWidget* const fileName = dialog.findChild<QWidget*>("fileNameEdit");
        const QWidget* const types = dialog.findChild<QWidget*>("fileTypeCombo");
        const int fields = chain.indexOf(const_cast<QWidget*>(fileName));
        for (int i = 1; i < fields; ++i) {
            const QPoint before = place(chain.at(i - 1));
            const QPoint here = place(chain.at(i));
            const bool nextRow = here.y() >= before.y() + chain.at(i - 1)->height() / 2;
            QVERIFY2(nextRow || here.x() > before.x(), qPrintable(names.join(", ")));
        }
        QCOMPARE(chain.at(fields + 1), types);
        // Then the buttons of the box, and round again.
        for (int i = fields + 2; i < chain.size(); ++i)
            QVERIFY2(place(chain.at(i)).x() > place(fileName).x() + fileName->width(),
                     qPrintable(names.join(", ")));
        dialog.reject();
    })});
}

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
