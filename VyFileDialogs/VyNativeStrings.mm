// SPDX-License-Identifier: MIT
#include "VyNativeStrings.h"

#include <cstdlib>

namespace {

constexpr NSUInteger bufferUnits = 1024; // most paths and labels: no allocation

QString copyCharacters(NSString* string, unichar* buffer, NSUInteger length)
{
    [string getCharacters:buffer range:NSMakeRange(0, length)];
    QString result;
    result.setUnicode(reinterpret_cast<const QChar*>(buffer), static_cast<int>(length));
    return result;
}

} // namespace

QString qStringfromNSString(NSString* string)
{
    if (!string)
        return QString();
    const NSUInteger length = [string length];
    if (length <= bufferUnits) {
        unichar buffer[bufferUnits];
        return copyCharacters(string, buffer, length);
    }
    auto* buffer = static_cast<unichar*>(std::malloc(length * sizeof(unichar)));
    Q_CHECK_PTR(buffer);
    QString result = copyCharacters(string, buffer, length);
    std::free(buffer);
    return result;
}

NSString* nsStringFromQString(const QString& string)
{
    return [NSString stringWithUTF8String:string.toUtf8().constData()];
}
