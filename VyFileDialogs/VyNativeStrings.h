// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

#include <QString>

/// The QString with the same UTF-16 code units; null for nil.
QString qStringfromNSString(NSString* string);

/// The platform string with the same text, up to a zero character; autoreleased,
/// never nil.
NSString* nsStringFromQString(const QString& string);
