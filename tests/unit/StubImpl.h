// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogImpl.h"

#include <QString>
#include <QStringList>

/// A back-end without a dialog: it writes down what presets it and answers the
/// modes that it is made with.
class StubImpl : public CVyFileDialogImpl
{
public:
    explicit StubImpl(int openMode = 0, int newMode = 0)
        : m_openMode(openMode)
        , m_newMode(newMode)
    {}

    /// What was set, as "folder VALUE" or "name VALUE".
    const QStringList& presets() const { return m_presets; }

    int setTitle(const CVyString&) override { return note("title"); }
    int setDefaultExtension(const CVyString&) override { return note("extension"); }
    int setDefaultFolder(const CVyString& folder) override
    {
        return note("folder " + QString(folder));
    }
    int setDefaultFileName(const CVyString& name) override { return note("name " + QString(name)); }
    int setFileTypes(const CVyString&) override { return note("types"); }
    int setFileTypeIndex(int) override { return note("type index"); }
    int setDefaultTemplateName(const CVyString&) override { return note("template"); }
    int show(unsigned long long) override { return VyStatus::Failed; }
    int getResult(CVyString*) override { return VyStatus::NothingSelected; }
    int getResults(std::vector<CVyString>*) override { return VyStatus::NothingSelected; }
    int getFileTypeIndex(int*) override { return VyStatus::Failed; }
    int getTemplateName(CVyString*) override { return 0; }
    int getNewMode() override { return m_newMode; }
    int getOpenMode() override { return m_openMode; }

private:
    int note(const QString& preset)
    {
        m_presets.append(preset);
        return VyStatus::Accepted;
    }

    const int m_openMode;
    const int m_newMode;
    QStringList m_presets;
};
