// SPDX-License-Identifier: MIT
#include "VyDocument.h"

namespace {
CVyDocument* s_activeDocument = nullptr;
}

CVyDocument::CVyDocument(QWidget* view)
    : m_view(view)
{}

CVyDocument::~CVyDocument()
{
    if (s_activeDocument == this)
        s_activeDocument = nullptr;
}

CVyDocument* ACTIVE_DOCUMENT()
{
    return s_activeDocument;
}

void VySetActiveDocument(CVyDocument* document)
{
    s_activeDocument = document;
}
