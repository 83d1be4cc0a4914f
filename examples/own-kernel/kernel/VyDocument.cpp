// SPDX-License-Identifier: MIT
#include "VyDocument.h"

namespace {
CVyDocument* active;
}

CVyDocument::CVyDocument(QWidget* view)
    : m_view(view)
{
    active = this;
}

CVyDocument::~CVyDocument()
{
    if (active == this)
        active = nullptr;
}

CVyDocument* ACTIVE_DOCUMENT()
{
    return active;
}
