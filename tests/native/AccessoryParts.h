// SPDX-License-Identifier: MIT
#pragma once

#include "PanelDriver.h"

#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"

/// What a view is built from. Null texts and lists are given as nil.
struct Parts
{
    QStringList descriptions{"Drawing", "Exchange", "Template", "All"};
    QStringList lists{"dwg", "dxf;dxb", "dwt", "*"};
    QStringList modes{"Open", "Open Read-Only", "Open with Encoding..."};
    QString description;
    QString templatePath = "/";
    bool withTypes = true;
    bool withModes = true;
    bool noTemplateHandling = false;
};

inline NSString* orNil(const QString& text)
{
    return text.isNull() ? nil : nsStringFromQString(text);
}

inline NSArray* orNil(bool given, const QStringList& list)
{
    return given ? [CVyViewFilterToolMacNative getArrayFilter:&list] : nil;
}

// The panel is an NSSavePanel or what answers as one.
inline CVyViewFilterMacNative* build(id panel, CVyNSOpenSavePanelDelegate* delegate,
                                     const Parts& parts)
{
    return [[[CVyViewFilterMacNative alloc]
               initWithFilter:orNil(parts.withTypes, parts.descriptions)
             setFilterFileExt:orNil(parts.withTypes, parts.lists)
              setDefaultValue:orNil(parts.description)
                     setPanel:panel
             setPanelDelegate:delegate
                  setOpenMode:orNil(parts.withModes, parts.modes)
           setDefaultOpenMode:parts.withModes ? orNil(parts.modes.value(0)) : nil
           setTemplateDWGPath:nsStringFromQString(parts.templatePath)
        setNoTemplateHandling:parts.noTemplateHandling] autorelease];
}

inline NSPopUpButton* popupOf(NSView* view, SEL action)
{
    for (NSView* child in [view subviews]) {
        if ([child isKindOfClass:[NSPopUpButton class]] &&
            sel_isEqual([static_cast<NSPopUpButton*>(child) action], action))
            return static_cast<NSPopUpButton*>(child);
    }
    return nil;
}

inline NSPopUpButton* typePopup(NSView* view)
{
    return popupOf(view, @selector(filterChanged:));
}

inline NSPopUpButton* modePopup(NSView* view)
{
    return popupOf(view, @selector(openmodeChanged:));
}

inline CVyNSOpenSavePanelDelegate* newDelegate()
{
    return [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
}

// Which of some names the delegate shows.
inline QStringList shown(CVyNSOpenSavePanelDelegate* delegate)
{
    QStringList result;
    for (const QString& name : {"a.dwg", "b.dxf", "c.dxb", "d.dwt", "e.DWT", "f.pdf", "g"}) {
        if ([delegate panel:nil shouldShowFilename:nsStringFromQString("/none/" + name)])
            result += name;
    }
    return result;
}

inline const QStringList everyName{"a.dwg", "b.dxf", "c.dxb", "d.dwt", "e.DWT", "f.pdf", "g"};
