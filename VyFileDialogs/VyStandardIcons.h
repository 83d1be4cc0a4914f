// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QStyle;
class QWidget;

/// Spares a dialog of Qt's the reading of its standard icons, which Qt decodes
/// anew for every dialog: a quarter of the time until it is painted. The
/// application keeps them, as a property of its object, until its style, icon
/// theme, direction or resolution is another.
///
/// The first widget that is made while this lives is lent a style for as long,
/// one that answers as the application's does. Nothing is lent, and Qt reads the
/// icons, where style sheets apply and for styles other than Qt's own, whose icons
/// may depend on what nobody knows. In the user-interface thread.
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
