// SPDX-License-Identifier: MIT
#include "FakeFamily.h"

namespace {

FakeFamily::Script s_script;
QStringList s_calls;
int s_alive = 0;

class FakeImpl : public CVyFileDialogImpl
{
public:
    FakeImpl() { ++s_alive; }
    ~FakeImpl() override
    {
        --s_alive;
        s_calls.append(QStringLiteral("delete"));
    }

    int setTitle(const CVyString& text) override { return note("setTitle", text); }
    int setDefaultExtension(const CVyString& text) override
    {
        return note("setDefaultExtension", text);
    }
    int setDefaultFolder(const CVyString& text) override { return note("setDefaultFolder", text); }
    int setDefaultFileName(const CVyString& text) override
    {
        return note("setDefaultFileName", text);
    }
    int setFileTypes(const CVyString& text) override { return note("setFileTypes", text); }
    int setFileTypeIndex(int index) override
    {
        return note("setFileTypeIndex", QString::number(index));
    }
    int setDefaultTemplateName(const CVyString& text) override
    {
        return note("setDefaultTemplateName", text);
    }

    int show(unsigned long long parentWindow) override
    {
        note("show", QString::number(parentWindow));
        if (s_script.duringShow)
            s_script.duringShow();
        return s_script.showStatus;
    }

    int getResult(CVyString* path) override
    {
        note("getResult");
        if (s_script.results.isEmpty())
            return VyStatus::NothingSelected;
        *path = CVyString(s_script.results.constFirst());
        return VyStatus::Accepted;
    }
    int getResults(std::vector<CVyString>* paths) override
    {
        note("getResults");
        if (s_script.results.isEmpty())
            return VyStatus::NothingSelected;
        paths->insert(paths->end(), s_script.results.cbegin(), s_script.results.cend());
        return VyStatus::Accepted;
    }
    int getFileTypeIndex(int* index) override
    {
        note("getFileTypeIndex");
        if (s_script.typeIndex < 0)
            return VyStatus::Failed;
        *index = s_script.typeIndex;
        return VyStatus::Accepted;
    }
    int getTemplateName(CVyString*) override
    {
        note("getTemplateName");
        return 0;
    }
    int getNewMode() override
    {
        note("getNewMode");
        return s_script.newMode;
    }
    int getOpenMode() override
    {
        note("getOpenMode");
        return s_script.openMode;
    }

private:
    // Setters answer a failure on purpose: the front must not care.
    static int note(const char* call, const QString& argument = QString())
    {
        QString text = QLatin1String(call);
        if (!argument.isNull())
            text += QLatin1Char('(') + argument + QLatin1Char(')');
        s_calls.append(text);
        if (s_script.onCall)
            s_script.onCall(text);
        return VyStatus::Failed;
    }
};

CVyFileDialogImpl* create(const char* family, CVyUserIO::_FileNameType type, bool multiple,
                          bool modeChoices)
{
    s_calls.append(QStringLiteral("%1(%2,%3,%4)")
                       .arg(QLatin1String(family))
                       .arg(static_cast<unsigned>(type), 0, 16)
                       .arg(multiple)
                       .arg(modeChoices));
    return s_script.makesImpl ? new FakeImpl : nullptr;
}

} // namespace

FakeFamily::Script& FakeFamily::script()
{
    return s_script;
}

QStringList& FakeFamily::calls()
{
    return s_calls;
}

int FakeFamily::alive()
{
    return s_alive;
}

void FakeFamily::reset()
{
    s_script = Script();
    s_calls.clear();
}

CVyFileDialogImpl* CVyFileDialogImpl::createQt(CVyUserIO::_FileNameType type, bool multiple,
                                               bool modeChoices)
{
    return create("createQt", type, multiple, modeChoices);
}

CVyFileDialogImpl* CVyFileDialogImpl::createMac(CVyUserIO::_FileNameType type, bool multiple,
                                                bool modeChoices)
{
    return create("createMac", type, multiple, modeChoices);
}
