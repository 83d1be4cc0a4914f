// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"
#include "VyString.h"

#include <QDialog>

class CVyCodePageList;
class QCheckBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// \file
/// The dialog behind "Open with Encoding...".

/// Asks the user in which code page to read a drawing's text, and whether to
/// open it read-only.
///
/// The pages are grouped by region and found by typing; the system's own one, see
/// VySystemCodePage(), is chosen at first. Below them stands how text reads in the
/// chosen page. Nothing is remembered from one dialog to the next. Escape empties
/// the search first, and cancels where there is none.
class VY_HOSTKERNEL_EXPORT CVyDlgEncoding : public QDialog
{
    Q_OBJECT

public:
    /// \a fileName is shown to say which drawing is meant: an absolute path by
    /// its file's name, any other text, such as "Multiple files", as it stands.
    ///
    /// The regular file, or link to one, at an absolute path is read here, once:
    /// at most its first MiB, and if it is a text DXF file, some of its texts are
    /// the sample. Otherwise, and where it cannot be read, which is no error, the
    /// sample is words in a language of the chosen page. No other file is opened.
    CVyDlgEncoding(QWidget* parent, const CVyString& fileName);

    /// The chosen page, or null when none is: when the search finds none. What it
    /// points to lives as long as the library, so the answer may be kept after the
    /// dialog has gone; it is the caller's to read, not to delete or change.
    OdCodePageId* GetCodepage() const;

    /// Whether the drawing is to be opened read-only; at first it is not.
    bool IsReadOnly() const;

protected:
    /// Leads keys from the search to the list and back.
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void onSearchChanged(const QString& typed);
    void onPageChanged();

private:
    void addControls(const QString& path);
    void connectControls();
    bool searchTakes(QKeyEvent& event);
    bool listTakes(QKeyEvent& event);

    const QList<QByteArray> m_texts; // of the drawing, as they are stored
    QLineEdit* m_search;
    CVyCodePageList* m_pages;
    QPlainTextEdit* m_sample;
    QLabel* m_note;
    QCheckBox* m_readOnly;
    QPushButton* m_ok = nullptr;
};
