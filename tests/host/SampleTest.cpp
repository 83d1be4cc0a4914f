// SPDX-License-Identifier: MIT
#include "SampleTest.h"

#include "DrawingTabs.h"
#include "HostRequest.h"
#include "VyBookmarks.h"
#include "VySystemServices.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QtTest>

void SampleTest::initTestCase()
{
    QVERIFY(VySetBookmarkFile(QString()));
}

void SampleTest::init()
{
    VyClearBookmarks();
    m_folder = std::make_unique<DrawingFolder>();
    m_templates = std::make_unique<DrawingFolder>();
    const QString examples = QStringLiteral(VY_EXAMPLES_DIR);
    QVERIFY(QFile::copy(examples + "/drawings/" + plan, m_folder->filePath(plan)));
    QVERIFY(QFile::copy(examples + "/templates/" + sheet, m_templates->filePath(sheet)));
    m_folder->addFile(bare, "AC1032 and nothing else");
    GetVySystemServices()->SetTemplateFolder(m_templates->path());
    QDir::setCurrent(QDir::rootPath());
    m_window = std::make_unique<SampleWindow>(CVyFileDialog::StyleQt);
    m_window->show();
    // This platform gives each window that opens the focus.
    QTRY_VERIFY(m_window->findChild<QWidget*>("toolWindow")->isVisible());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

QAction* SampleTest::entry(const char* name) const
{
    auto* action = m_window->findChild<QAction*>(QLatin1String(name));
    if (!action)
        qFatal("no entry %s", name);
    return action;
}

void SampleTest::choose(const char* name, std::vector<DialogDriver::Step> steps)
{
    const DialogDriver driver(std::move(steps));
    if (!entry(name)->isEnabled())
        QTest::qFail(name, __FILE__, __LINE__);
    entry(name)->trigger();
}

void SampleTest::open(const QString& name)
{
    choose("open", {typing(m_folder->filePath(name))});
}

DrawingTabs& SampleTest::drawings() const
{
    return *m_window->findChild<DrawingTabs*>();
}

QStringList SampleTest::tabs() const
{
    QStringList names;
    for (int index = 0; index < drawings().count(); ++index)
        names.append(drawings().tabText(index));
    return names;
}

QString SampleTest::answer(const char* row) const
{
    return m_window->findChild<QLabel*>(QLatin1String(row))->text();
}

QStringList SampleTest::recent() const
{
    auto* menu = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
    Q_EMIT menu->aboutToShow();
    QStringList files;
    for (const QAction* each : menu->actions()) {
        if (each->objectName().startsWith(QLatin1String("recentFile")))
            files.append(each->toolTip());
    }
    return files;
}

QByteArray SampleTest::contents(const QString& path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

DialogDriver::Step cancelling()
{
    return onFileDialog([](QFileDialog& dialog) { dialog.reject(); });
}

DialogDriver::Step typing(const QString& name)
{
    return onFileDialog([name](QFileDialog& dialog) { typeAndAccept(dialog, name); });
}

DialogDriver::Step choosingMode(int index, const QString& name)
{
    return onFileDialog([=](QFileDialog& dialog) {
        if (!name.isEmpty())
            typeName(dialog, name);
        dialog.findChild<QMenu*>(QStringLiteral("modeMenu"))->actions().at(index)->trigger();
    });
}

DialogDriver::Step reading(QString& text, const char* button)
{
    return [&text, button](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (!box) {
            QTest::qFail("no message", __FILE__, __LINE__);
            dialog.reject();
            return;
        }
        text = box->text() + QLatin1Char('\n') + box->informativeText();
        if (button)
            box->findChild<QAbstractButton*>(QLatin1String(button))->click();
        else
            box->accept();
    };
}
