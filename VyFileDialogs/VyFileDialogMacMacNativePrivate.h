// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <QString>
#include <QStringList>

/// What a panel controller does, whatever its kind.
@protocol VyPanelController
/// Builds the panel from the record, runs it, and writes an accepted answer
/// into the record. Returns when the panel has closed.
- (void)drawWidget;
@end

/// The record of one native dialog object: the request that its panel controller
/// reads and the answer that it writes. It owns the controller, which points
/// back at it without owning it.
class CVyFileDialogMacMacNativePrivate
{
public:
    virtual ~CVyFileDialogMacMacNativePrivate();

    void SetListFilter(const QStringList& descriptions);
    void SetListFilterFileExt(const QStringList& extensionLists);
    void SetFileNames(const QStringList& fileNames);
    void GetFileNames(QStringList& fileNames) const;

    /// Makes a controller and lets it run a panel. The controller of an earlier
    /// run is forgotten, not released. An Objective-C exception that reaches
    /// this ends the run as cancelled, with a warning.
    void DoModal();

    id<VyPanelController> m_panelController = nil; ///< owned
    QStringList m_fileNames;                       ///< answer: the chosen paths
    QStringList m_listFilter;                      ///< description of each type
    QStringList m_listFilterFileExt;               ///< extensions of each type, joined by ";"
    QString m_directory;
    QString m_templateDWGPath;
    QString m_defSuffix;
    QString m_caption;
    QString m_defaultFileName; ///< stays null in an open panel's record
    QString m_selectedFilter;  ///< type to preselect; in a save panel's record also an answer
    QString m_openMode;        ///< answer: label of the mode that the user picked
    bool m_bHasPreview = false;

protected:
    CVyFileDialogMacMacNativePrivate() = default;

    /// A new controller for this record; the caller owns it.
    virtual id<VyPanelController> newPanelController() = 0;

private:
    Q_DISABLE_COPY(CVyFileDialogMacMacNativePrivate)
};
