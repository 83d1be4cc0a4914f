// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include <QStringList>

@class CVyNSOpenSavePanelDelegate;

/// Lists for the accessory view.
@interface CVyViewFilterToolMacNative : NSObject
/// The strings of \a list, which is not null, in order; autoreleased, never nil.
+ (NSArray*)getArrayFilter:(const QStringList*)list;
@end

/// What a panel carries below its file list: a "Files of Type:" popup, which
/// restricts the files shown, and, given modes, an "Open mode:" popup above
/// which it stands. Main thread only.
///
/// Both popups have an answer only once the user has used them.
@interface CVyViewFilterMacNative : NSView {
    NSArray* m_arrayFilter;
    NSArray* m_arrayFilterFileExt;
    NSSavePanel* m_panel;
    CVyNSOpenSavePanelDelegate* m_opensavePanelDelegate;
    NSArray* m_openModes;
    NSString* m_defaultOpenMode;
    NSString* m_templateDWGPath;
    BOOL m_bNoTemplateHandling;
    NSString* m_selectedFilterEntry;
    NSString* m_selectedOpenModeEntry;
    NSPopUpButton* m_popupbuttonFilter;
    NSTextField* m_label1;
    NSPopUpButton* m_popupbuttonOpenMode;
    NSTextField* m_label2;
}

/// Builds the view and restricts the panel to the type that is selected at once.
///
/// \param filter      descriptions of the types; nil for no popup of types
/// \param fileExt     for each description its extensions, joined by ";"
/// \param value       the description to select, nil for the first; one that
///                    is not in the list leaves the popup without a selection
/// \param panel       not owned
/// \param delegate    not owned; nil for a panel without one
/// \param openMode    labels of the modes, nil for no popup of modes
/// \param defaultOpenMode  the mode to select
/// \param templatePath     the folder to go to when a type with the extension
///                    "dwt" is picked
/// \param noTemplateHandling  YES to stay in the folder then
- (id)initWithFilter:(NSArray*)filter
         setFilterFileExt:(NSArray*)fileExt
          setDefaultValue:(NSString*)value
                 setPanel:(NSSavePanel*)panel
         setPanelDelegate:(CVyNSOpenSavePanelDelegate*)delegate
              setOpenMode:(NSArray*)openMode
       setDefaultOpenMode:(NSString*)defaultOpenMode
       setTemplateDWGPath:(NSString*)templatePath
    setNoTemplateHandling:(BOOL)noTemplateHandling;

/// The extensions of the type at \a index; none when there is no such type.
- (NSArray*)getAllowedFileType:(NSInteger)index;

/// Action of the popup of types. On macOS 10.7 and later every change flips
/// whether the panel shows hidden files.
- (void)filterChanged:(id)sender;

/// Action of the popup of modes.
- (void)openmodeChanged:(id)sender;

/// Moves the panel to the folder \a path.
- (void)setDirectory:(NSString*)path;

/// The description that the user picked, nil when none.
- (NSString*)selectedFilter;

/// The mode that the user picked, nil when none.
- (NSString*)selectedOpenMode;

// What a print panel asks of an accessory view.
- (NSSet*)keyPathsForValuesAffectingPreview;
- (NSArray*)localizedSummaryItems;

@end

/// Restricts \a panel and its delegate, which may be nil, to \a types,
/// extensions without dots: the files shown, whether other extensions may be
/// typed, whether extensions are hidden, and whether packages can be entered.
/// "*" stands for any file.
void setAllowedFileTypes(NSSavePanel* panel, CVyNSOpenSavePanelDelegate* delegate, NSArray* types);

/// The width of \a string in points as the text system sets it in \a font, nil
/// for its default font.
float widthForStringDrawing(NSString* string, NSFont* font);
