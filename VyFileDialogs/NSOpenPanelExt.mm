// SPDX-License-Identifier: MIT
#include "NSOpenPanelExt.h"

namespace {

constexpr unsigned short escapeKeyCode = 53;
constexpr NSUInteger commandKeyMask = 0x100000;

} // namespace

@implementation NSOpenPanelExt

- (void)keyUp:(NSEvent*)event
{
    if ([event keyCode] != escapeKeyCode)
        [super keyUp:event];
    else if ([self respondsToSelector:@selector(cancel:)])
        [self cancel:self];
}

@end

@implementation NSOpenPanelExtWithSelectAll

// The comparison of the bit is spelled out: where BOOL is a signed char, the
// masked value itself would become NO.
- (BOOL)performKeyEquivalent:(NSEvent*)event
{
    NSString* const characters = [event charactersIgnoringModifiers]; // nil for some keys
    if (([event modifierFlags] & commandKeyMask) != 0 && characters &&
        [characters compare:@"a"] == NSOrderedSame) {
        if ([[self firstResponder] respondsToSelector:@selector(selectAll:)])
            [[self firstResponder] performSelector:@selector(selectAll:) withObject:self];
        return YES;
    }
    return [super performKeyEquivalent:event];
}

@end
