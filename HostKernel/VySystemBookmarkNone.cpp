// SPDX-License-Identifier: MIT
// Systems without records of their own.
#include "VySystemBookmark.h"

QByteArray CVySystemBookmark::of(const QByteArray&)
{
    return {};
}

CVySystemBookmark::CVySystemBookmark(const QByteArray&) {}

CVySystemBookmark::~CVySystemBookmark()
{
    Q_UNUSED(m_url)
}
