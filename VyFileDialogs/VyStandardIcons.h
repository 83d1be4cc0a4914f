// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QStyle;
class QWidget;

/// Spares a dialog of Qt's most of the reading of its standard icons: Qt reads each
/// in all of its sizes, and its buttons show one, the smallest. The dialog gets the
/// same icons, the larger pictures of which are read when somebody asks for them.
///
/// The first widget that is made while this lives is lent a style for as long,
/// one that answers as the application's does. Nothing is lent, and Qt reads the
/// icons, where a style sheet applies, for styles other than Qt's own and on
/// screens of high resolution, where larger pictures are shown. In the
/// user-interface thread.
class CVyStandardIcons : public QObject
{
public:
    /// For a dialog that will have \a parent, which may be null.
    explicit CVyStandardIcons(QWidget* parent);
    /// Takes the style back.
    ~CVyStandardIcons() override;
    Q_DISABLE_COPY(CVyStandardIcons)

    /// The parent, so that a constructor can name both in one expression, at whose
    /// end this goes.
    QWidget* parentOfDialog() const { return m_parent; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QWidget* const m_parent;
    std::unique_ptr<QStyle> m_style; ///< null: nothing is lent
    QPointer<QWidget> m_widget;      ///< that it is lent to
};
