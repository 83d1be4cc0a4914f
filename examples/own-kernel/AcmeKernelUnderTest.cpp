// SPDX-License-Identifier: MIT
// Acme's kernel under the contract tests of VyFileDialogs.
#include "KernelUnderTest.h"

#include "AcmeSettings.h"
#include "VyDocument.h"

#include <memory>

namespace {
std::unique_ptr<CVyDocument> document;
}

void KernelUnderTest::openDocument(QWidget* view)
{
    document = std::make_unique<CVyDocument>(view);
}

void KernelUnderTest::closeDocument()
{
    document.reset();
}

void KernelUnderTest::setTemplateFolder(const QString& folder)
{
    AcmeSettings::setTemplateFolder(folder);
}

void KernelUnderTest::setExpertLevel(int level)
{
    AcmeSettings::setExpertLevel(level);
}

QStringList KernelUnderTest::bookmarkedPaths()
{
    return AcmeSettings::recentFiles();
}
