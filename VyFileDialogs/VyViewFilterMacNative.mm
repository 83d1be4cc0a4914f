// SPDX-License-Identifier: MIT
#include "VyViewFilterMacNative.h"

#include "VyAccessoryLayout.h"
#include "VyCocoa.h"
#include "VyFileTypeList.h"
#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"
#include "VyPanelMessages.h"
#include "VyUtilsMacNative.h"

#include <QCoreApplication>

#include <cfloat>

namespace {

constexpr int macOS10_7 = 100700;

// What a finished view and its parts do when the panel is resized.
constexpr NSUInteger viewResizing = NSViewWidthSizable | NSViewHeightSizable;
constexpr NSUInteger popupResizing = NSViewWidthSizable | NSViewMinYMargin;

NSString* translated(const char* text)
{
    return nsStringFromQString(QCoreApplication::translate("CVyFileDialogs", text));
}

NSRect rect(const VyAccessoryLayout::Rect& r)
{
    return NSMakeRect(r.x, r.y, r.width, r.height);
}

// Every title gets an item of its own, so that an item's index is its index in
// the list. A popup folds items that are added with equal titles, so they are
// added under numbers.
void addItems(NSPopUpButton* popup, NSArray* titles)
{
    for (NSUInteger index = 0; index < [titles count]; ++index)
        [popup
            addItemWithTitle:[NSString stringWithFormat:@"%lu", static_cast<unsigned long>(index)]];
    NSInteger index = 0;
    for (NSString* title in titles)
        [[popup itemAtIndex:index++] setTitle:title];
}

NSPopUpButton* addPopup(NSView* view, const VyAccessoryLayout::Rect& frame, NSArray* titles,
                        SEL action)
{
    NSPopUpButton* const popup = [[[NSPopUpButton alloc] initWithFrame:rect(frame)
                                                             pullsDown:NO] autorelease];
    [popup setAutoresizingMask:popupResizing];
    [popup setTarget:view];
    [popup setAction:action];
    addItems(popup, titles);
    [view addSubview:popup];
    return popup;
}

NSTextField* addLabel(NSView* view, const VyAccessoryLayout::Rect& frame, NSString* text)
{
    NSTextField* const label = [[[NSTextField alloc] initWithFrame:rect(frame)] autorelease];
    [label setStringValue:text];
    [label setBezeled:NO];
    [label setDrawsBackground:NO];
    [label setEditable:NO];
    [label setSelectable:NO];
    [view addSubview:label];
    return label;
}

bool hasTypeOf(NSArray* types, NSString* wanted)
{
    for (NSString* type in types) {
        if ([type compare:wanted options:NSCaseInsensitiveSearch] == NSOrderedSame)
            return true;
    }
    return false;
}

// Out-of-process panels are seen through a stand-in that is no NSOpenPanel.
bool isOpenPanel(NSSavePanel* panel)
{
    return [panel isKindOfClass:[NSOpenPanel class]] ||
           [[panel className] isEqualToString:@"NSRemoteOpenPanel"];
}

void sendAllowedTypes(NSSavePanel* panel, CVyNSOpenSavePanelDelegate* delegate, NSArray* types)
{
    [delegate setAllowedFileTypes:types];
    if (!delegate || VyCocoa::isNewerPlatform())
        VyPanelMessages::allowedFileTypes(panel, types);
}

} // namespace

float widthForStringDrawing(NSString* string, NSFont* font)
{
    NSTextStorage* const storage = [[[NSTextStorage alloc] initWithString:string] autorelease];
    NSTextContainer* const container =
        [[[NSTextContainer alloc] initWithContainerSize:NSMakeSize(FLT_MAX, FLT_MAX)] autorelease];
    NSLayoutManager* const layoutManager = [[[NSLayoutManager alloc] init] autorelease];
    if (!layoutManager)
        return 0;
    [layoutManager addTextContainer:container];
    [storage addLayoutManager:layoutManager];
    if (font)
        [storage addAttribute:NSFontAttributeName
                        value:font
                        range:NSMakeRange(0, [storage length])];
    [container setLineFragmentPadding:0.0];
    [layoutManager glyphRangeForTextContainer:container]; // forces the layout
    return static_cast<float>([layoutManager usedRectForTextContainer:container].size.width);
}

void setAllowedFileTypes(NSSavePanel* panel, CVyNSOpenSavePanelDelegate* delegate, NSArray* types)
{
    const BOOL anyFile = [types containsObject:@"*"];
    sendAllowedTypes(panel, delegate, types);
    if (anyFile) {
        if (![panel canSelectHiddenExtension])
            [panel setCanSelectHiddenExtension:YES];
        sendAllowedTypes(panel, delegate, nil);
    }
    [panel setAllowsOtherFileTypes:anyFile];
    [panel setExtensionHidden:!anyFile];
    [panel setTreatsFilePackagesAsDirectories:isOpenPanel(panel) && (hasTypeOf(types, @"dylib") ||
                                                                     hasTypeOf(types, @"tx"))];
    if (delegate && [panel respondsToSelector:@selector(validateVisibleColumns)])
        [panel validateVisibleColumns];
}

@implementation CVyViewFilterToolMacNative

+ (NSArray*)getArrayFilter:(const QStringList*)list
{
    NSMutableArray* const result = [NSMutableArray array];
    for (const QString& string : *list)
        [result addObject:nsStringFromQString(string)];
    return result;
}

@end

@interface CVyViewFilterMacNative (Building)
- (void)addFilterRowWithDefault:(NSString*)value label:(NSString*)text width:(int)labelWidth;
- (void)addModeRowWithLabel:(NSString*)text width:(int)labelWidth;
@end

@implementation CVyViewFilterMacNative (Building)

- (void)addFilterRowWithDefault:(NSString*)value label:(NSString*)text width:(int)labelWidth
{
    const int y = VyAccessoryLayout::filterRowY(m_openModes != nil);
    m_popupbuttonFilter = addPopup(self, VyAccessoryLayout::popup(labelWidth, y), m_arrayFilter,
                                   @selector(filterChanged:));
    if (value)
        [m_popupbuttonFilter selectItemWithTitle:value];
    else if ([m_arrayFilter count])
        [m_popupbuttonFilter selectItemAtIndex:0];
    setAllowedFileTypes(m_panel, m_opensavePanelDelegate,
                        [self getAllowedFileType:[m_popupbuttonFilter indexOfSelectedItem]]);
    m_label1 = addLabel(self, VyAccessoryLayout::label(labelWidth, y), text);
}

- (void)addModeRowWithLabel:(NSString*)text width:(int)labelWidth
{
    m_popupbuttonOpenMode = addPopup(self, VyAccessoryLayout::popup(labelWidth, 0), m_openModes,
                                     @selector(openmodeChanged:));
    if (m_defaultOpenMode)
        [m_popupbuttonOpenMode selectItemWithTitle:m_defaultOpenMode];
    m_label2 = addLabel(self, VyAccessoryLayout::label(labelWidth, 0), text);
}

@end

@implementation CVyViewFilterMacNative

- (id)initWithFilter:(NSArray*)filter
         setFilterFileExt:(NSArray*)fileExt
          setDefaultValue:(NSString*)value
                 setPanel:(NSSavePanel*)panel
         setPanelDelegate:(CVyNSOpenSavePanelDelegate*)delegate
              setOpenMode:(NSArray*)openMode
       setDefaultOpenMode:(NSString*)defaultOpenMode
       setTemplateDWGPath:(NSString*)templatePath
    setNoTemplateHandling:(BOOL)noTemplateHandling
{
    NSString* const filterText = translated(QT_TRANSLATE_NOOP("CVyFileDialogs", "Files of Type:"));
    NSString* const modeText = translated(QT_TRANSLATE_NOOP("CVyFileDialogs", "Open mode:"));
    const int labelWidth =
        VyAccessoryLayout::labelWidth(widthForStringDrawing(filterText, nil),
                                      openMode ? widthForStringDrawing(modeText, nil) : 0);

    self = [super
        initWithFrame:rect(VyAccessoryLayout::view(labelWidth, filter != nil, openMode != nil))];
    if (!self)
        return nil;
    [self setAutoresizingMask:viewResizing];
    m_arrayFilter = [filter retain];
    m_arrayFilterFileExt = [fileExt retain];
    m_panel = panel;
    m_opensavePanelDelegate = delegate;
    m_openModes = [openMode retain];
    m_defaultOpenMode = [defaultOpenMode retain];
    m_templateDWGPath = [templatePath retain];
    m_bNoTemplateHandling = noTemplateHandling;

    if (m_arrayFilter)
        [self addFilterRowWithDefault:value label:filterText width:labelWidth];
    if (m_openModes)
        [self addModeRowWithLabel:modeText width:labelWidth];

    // The margin must not stretch or move the rows; what the panel does later may.
    [self setAutoresizesSubviews:NO];
    [self
        setFrame:rect(VyAccessoryLayout::finishedView(labelWidth, filter != nil, openMode != nil))];
    [self setAutoresizesSubviews:YES];
    [self setNeedsDisplay:YES];
    return self;
}

- (void)dealloc
{
    [m_arrayFilter release];
    [m_arrayFilterFileExt release];
    [m_openModes release];
    [m_defaultOpenMode release];
    [m_templateDWGPath release];
    [super dealloc];
}

- (NSArray*)getAllowedFileType:(NSInteger)index
{
    QStringList extensions;
    if (index >= 0 && index < static_cast<NSInteger>([m_arrayFilterFileExt count])) {
        NSString* const list = [m_arrayFilterFileExt objectAtIndex:static_cast<NSUInteger>(index)];
        extensions = VyFileTypeList::splitExtensions(qStringfromNSString(list));
    }
    return [CVyViewFilterToolMacNative getArrayFilter:&extensions];
}

- (void)filterChanged:(id)sender
{
    const NSInteger index = [m_popupbuttonFilter indexOfSelectedItem];
    if (index < 0 || index >= static_cast<NSInteger>([m_arrayFilter count]))
        return;
    NSArray* const types = [self getAllowedFileType:index];
    setAllowedFileTypes(m_panel, m_opensavePanelDelegate, types);
    if ([types containsObject:@"dwt"] && !m_bNoTemplateHandling)
        [self setDirectory:m_templateDWGPath];
    m_selectedFilterEntry = [m_arrayFilter objectAtIndex:static_cast<NSUInteger>(index)];

    // Sent twice, with the same value.
    if (CVyUtilsMacNative::getSystemVersion() >= macOS10_7) {
        const BOOL shown = ![m_panel showsHiddenFiles];
        [m_panel setShowsHiddenFiles:shown];
        [m_panel setShowsHiddenFiles:shown];
    }
}

- (void)openmodeChanged:(id)sender
{
    const NSInteger index = [m_popupbuttonOpenMode indexOfSelectedItem];
    if (index >= 0 && index < static_cast<NSInteger>([m_openModes count]))
        m_selectedOpenModeEntry = [m_openModes objectAtIndex:static_cast<NSUInteger>(index)];
}

- (void)setDirectory:(NSString*)path
{
    VyPanelMessages::directory(m_panel, path);
}

- (NSString*)selectedFilter
{
    return m_selectedFilterEntry;
}

- (NSString*)selectedOpenMode
{
    return m_selectedOpenModeEntry;
}

- (NSSet*)keyPathsForValuesAffectingPreview
{
    return [NSSet setWithObject:@"dummyValue"];
}

- (NSArray*)localizedSummaryItems
{
    return [NSArray arrayWithObject:[NSDictionary dictionary]];
}

@end
