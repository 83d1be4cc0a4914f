// SPDX-License-Identifier: MIT
#pragma once

#include "DialogDriver.h"
#include "VyDlgEncoding.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

/// What the stand-alone kernel's encoding dialog consists of, for tests.
namespace EncodingDialogParts {

template <class Widget>
Widget* part(const QDialog& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QLatin1String(name));
}

inline QListWidget* pages(const QDialog& dialog)
{
    return part<QListWidget>(dialog, "codePages");
}

inline QLineEdit* search(const QDialog& dialog)
{
    return part<QLineEdit>(dialog, "search");
}

inline QString sample(const QDialog& dialog)
{
    return part<QPlainTextEdit>(dialog, "sample")->toPlainText();
}

inline QString note(const QDialog& dialog)
{
    return part<QLabel>(dialog, "note")->text();
}

inline QPushButton* ok(const QDialog& dialog)
{
    return part<QPushButton>(dialog, "ok");
}

inline bool isHeading(const QListWidgetItem& item)
{
    return !(item.flags() & Qt::ItemIsSelectable);
}

/// What the list shows: headings by their text, pages by their name in drawings.
inline QStringList shown(const QDialog& dialog)
{
    QStringList texts;
    for (int row = 0; row < pages(dialog)->count(); ++row) {
        const QListWidgetItem& item = *pages(dialog)->item(row);
        if (!item.isHidden())
            texts.append(item.text().section(QStringLiteral(" \u2013 "), -1));
    }
    return texts;
}

inline QByteArray chosen(const CVyDlgEncoding& dialog)
{
    return dialog.GetCodepage() ? VyCodePageName(*dialog.GetCodepage()) : nullptr;
}

/// Runs the dialog; \a work is done while it is the active window.
inline int run(CVyDlgEncoding& dialog, const std::function<void()>& work)
{
    const DialogDriver driver({[&work](QDialog& running) {
        QVERIFY(QTest::qWaitForWindowActive(&running));
        work();
    }});
    return dialog.exec();
}

/// Keys go where the focus is.
inline void press(const QDialog& dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(dialog.focusWidget(), key, modifiers);
}

inline void write(const QDialog& dialog, const QString& text)
{
    for (const QChar letter : text)
        QTest::keyClicks(dialog.focusWidget(), QString(letter));
}

/// Lets Qt end the fading of the field's clear button, which it forgets when the
/// field has gone before; to be called before a test ends.
inline void letFadingEnd()
{
    QTest::qWait(50); // a few frames
}

} // namespace EncodingDialogParts
