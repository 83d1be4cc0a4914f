// SPDX-License-Identifier: MIT
// The stand-alone kernel under its contract tests.
#include "KernelUnderTest.h"

#include "VyBookmarks.h"
#include "VyDocument.h"
#include "VySystemServices.h"

#include <memory>

namespace KernelUnderTest {

namespace {
std::unique_ptr<CVyDocument> s_document;
}

void openDocument(QWidget* view)
{
    s_document = std::make_unique<CVyDocument>(view);
    VySetActiveDocument(s_document.get());
}

void closeDocument()
{
    s_document.reset();
}

void setTemplateFolder(const QString& folder)
{
    GetVySystemServices()->SetTemplateFolder(CVyString(folder));
}

void setExpertLevel(int level)
{
    GetVySystemServices()->GetSettings().SetExpertLevel(level);
}

QStringList bookmarkedPaths()
{
    QStringList paths;
    const QList<VyBookmark> bookmarks = VyBookmarks();
    for (const VyBookmark& bookmark : bookmarks)
        paths.append(bookmark.path);
    return paths;
}

} // namespace KernelUnderTest
