// SPDX-License-Identifier: MIT
// The Qt dialogs in a language that nobody speaks: read from right to left, with texts
// half as long again in brackets, so that what is not mirrored, not translated or cut
// is seen.
#include "DrawingFolder.h"
#include "FolderButtons.h"
#include "HostRequest.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

namespace {

class PseudoLocale : public QTranslator
{
public:
    PseudoLocale() { QCoreApplication::installTranslator(this); }
    ~PseudoLocale() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY(PseudoLocale)

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (QByteArray(source) == "QT_LAYOUT_DIRECTION")
            return QStringLiteral("RTL");
        if (!QByteArray(context).startsWith("CVy"))
            return {};
        const QString text = QString::fromUtf8(source);
        return '[' + text + QString(text.size() / 2, u'~') + ']';
    }
};

bool isPseudo(const QString& text)
{
    return text.startsWith('[') && text.endsWith(']');
}

// The middle of a widget, seen from the left of its dialog.
int place(const QWidget* widget)
{
    return widget->mapTo(widget->window(), widget->rect().center()).x();
}

HostRequest requestFor(const QString& folder, unsigned type)
{
    HostRequest request;
    request.type = type;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = folder;
    return request;
}

} // namespace

class PseudoLocaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void openIsMirrored();
    void newIsTranslated();
    void encodingIsTranslated();
    void goesBackToLeftToRight();

private:
    PseudoLocale m_locale;
};

void PseudoLocaleTest::openIsMirrored()
{
    DrawingFolder folder;
    folder.addPicture("a.png", QSize(90, 60), Qt::red);
    HostRequest request = requestFor(folder.path(), CVyUserIO::FileNameOpen);
    request.filter = "Pictures&*.png";
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QCOMPARE(dialog.layoutDirection(), Qt::RightToLeft);
        QVERIFY(clickFile(dialog, "a.png"));
        auto* list = dialog.findChild<QListView*>("listView");
        auto* preview = dialog.findChild<QWidget*>("previewFrame");
        QTRY_VERIFY(preview->isVisible() && preview->width() > 50);
        QVERIFY(place(preview) < place(list));
        QVERIFY(place(list) < place(dialog.findChild<QListView*>("sidebar")));

        const QList<CVyDirPushButton*> folders = buttons(dialog);
        QVERIFY(folders.size() > 1);
        for (int i = 1; i < folders.size(); ++i)
            QVERIFY(place(folders.at(i)) < place(folders.at(i - 1)));
        const QRect root(folders.first()->mapTo(&dialog, QPoint()), folders.first()->size());
        QVERIFY(dialog.width() - root.right() < dialog.width() / 10);

        auto* caption = dialog.findChild<QLabel*>("previewCaption");
        QVERIFY(isPseudo(caption->text()));
        QTRY_VERIFY(caption->width() >= caption->sizeHint().width());
        QVERIFY(isPseudo(dialog.findChild<QWidget*>("previewLabel")->accessibleName()));
        for (const QAction* mode : dialog.findChild<QMenu*>("modeMenu")->actions())
            QVERIFY(isPseudo(mode->text()));
        dialog.reject();
    })});
    QCOMPARE(request.status, -5002);
}

void PseudoLocaleTest::newIsTranslated()
{
    const DrawingFolder folder;
    HostRequest request = requestFor(folder.path(), CVyUserIO::FileNameNew);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        auto* button = dialog.findChild<QToolButton*>("openButton");
        QVERIFY(isPseudo(button->text()));
        QVERIFY(button->width() >= button->sizeHint().width());
        for (const QAction* mode : button->menu()->actions())
            QVERIFY(isPseudo(mode->text()));
        button->menu()->actions().at(1)->trigger();
    })});
    QCOMPARE(request.status, 5100);
    QCOMPARE(request.mode, CVyUserIO::NewImperial);
}

void PseudoLocaleTest::encodingIsTranslated()
{
    DrawingFolder folder;
    folder.addFile("a.dwg");
    HostRequest request = requestFor(folder.path(), CVyUserIO::FileNameOpen);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
                             QVERIFY(clickFile(dialog, "a.dwg"));
                             dialog.findChild<QMenu*>("modeMenu")->actions().at(2)->trigger();
                         }),
                         [](QDialog& dialog) {
                             QVERIFY(isPseudo(dialog.windowTitle()));
                             for (const auto* label : dialog.findChildren<QLabel*>()) {
                                 if (label->buddy())
                                     QVERIFY2(isPseudo(label->text()), qPrintable(label->text()));
                             }
                             QVERIFY(
                                 isPseudo(dialog.findChild<QAbstractButton*>("readOnly")->text()));
                             dialog.accept();
                         }});
    QCOMPARE(request.status, 5100);
}

void PseudoLocaleTest::goesBackToLeftToRight()
{
    QCoreApplication::removeTranslator(&m_locale);
    const DrawingFolder folder;
    HostRequest request = requestFor(folder.path(), CVyUserIO::FileNameOpen);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        const QList<CVyDirPushButton*> folders = buttons(dialog);
        QVERIFY(place(folders.at(0)) < place(folders.at(1)));
        dialog.reject();
    })});
}

QTEST_MAIN(PseudoLocaleTest)
#include "PseudoLocaleTest.moc"
