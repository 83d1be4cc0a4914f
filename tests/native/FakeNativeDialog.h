// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMac.h"
#include "VyFileDialogMacMacNative.h"

#include <QFileDialog>
#include <QRegularExpression>

#include <functional>

/// A native dialog's answers, and what has been said to it.
struct Talk
{
    QStringList fileNames;
    QString selectedFilter;
    bool answersFilter = true; ///< else the argument stays as it is
    QString mode;
    std::function<void(const QString& call)> onCall = [](const QString&) {};

    QStringList calls;
    int alive = 0;
};

/// A native dialog that shows no panel.
class FakeNative : public CVyFileDialogMacMacNative
{
public:
    explicit FakeNative(Talk& talk)
        : m_talk(talk)
    {
        ++m_talk.alive;
    }
    ~FakeNative() override { --m_talk.alive; }

    void SetListFilter(QStringList list) override { note("SetListFilter", list); }
    void SetListFilterFileExt(QStringList list) override { note("SetListFilterFileExt", list); }
    void SetDirectory(QString text) override { note("SetDirectory", {text}); }
    void SetTemplateDWGPath(QString text) override { note("SetTemplateDWGPath", {text}); }
    void SetDefSuffix(QString text) override { note("SetDefSuffix", {text}); }
    void SetSelectedFilter(QString text) override { note("SetSelectedFilter", {text}); }
    void SetCaption(QString text) override { note("SetCaption", {text}); }
    void SetDefaultFileName(QString text) override { note("SetDefaultFileName", {text}); }
    void SetHasPreview(bool value) override { note("SetHasPreview", {value ? "yes" : "no"}); }
    void DoModal() override { note("DoModal", {}); }
    void GetFileNames(QStringList& list) const override
    {
        note("GetFileNames", {});
        list = m_talk.fileNames;
    }
    void GetSelectedFilter(QString& text) const override
    {
        note("GetSelectedFilter", {text});
        if (m_talk.answersFilter)
            text = m_talk.selectedFilter;
    }
    void GetOpenMode(QString& text) const override
    {
        note("GetOpenMode", {text});
        text = m_talk.mode;
    }

private:
    void note(const char* call, const QStringList& arguments) const
    {
        m_talk.calls += QLatin1String(call) + '(' + arguments.join('|') + ')';
        m_talk.onCall(QLatin1String(call));
    }

    Talk& m_talk;
};

/// A back-end with such a dialog.
class BackEnd : public CVyFileDialogMac
{
public:
    explicit BackEnd(Talk& talk)
        : CVyFileDialogMac(QFileDialog::ExistingFile, QFileDialog::AcceptOpen, false,
                           std::make_unique<FakeNative>(talk))
    {}
    void onTypeChange(const QString&) override { ++told; }
    void onActionOpen() override { ++told; }
    void onActionNew() override { ++told; }

    using CVyFileDialogMac::m_hasPreview;
    int told = 0; ///< of what no panel tells while it runs
};

/// The one call of that name, with its argument.
inline QString call(const Talk& talk, const QString& name)
{
    return talk.calls.filter(QRegularExpression('^' + name + "\\(")).join("; ");
}
