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
    if (([event modifierFlags] & commandKeyMask) != 0 &&
        [[event charactersIgnoringModifiers] compare:@"a"] == NSOrderedSame) {
        [[self firstResponder] tryToPerform:@selector(selectAll:) with:self];
        return YES;
    }
    return [super performKeyEquivalent:event];
}

@end
