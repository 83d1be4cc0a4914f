// SPDX-License-Identifier: MIT
// A name to be saved gets the extension of its type: what the name field shows, and
// what a request answers.
#include "FakeFamily.h"
#include "Fuzz.h"
#include "VyFileDialog.h"
#include "VyFileTypeList.h"
#include "VyUtils.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QFileInfo>

namespace {

// \a name and, unless it is there already, the list that stands for the type.
void checkSaved(const QString& name, const QString& saved, const std::vector<CVyString>& lists,
                int type)
{
    const bool known = type >= 0 && static_cast<std::size_t>(type) < lists.size();
    if (saved == name) {
        const CVyString suffix(QFileInfo(name).suffix());
        Fuzz::require(!known || suffix.equalNoCase(lists[static_cast<std::size_t>(type)]),
                      "a name stays when it has the extension");
        return;
    }
    Fuzz::require(known, "a type that is not there changes nothing");
    Fuzz::require(saved == name + '.' + QString(lists[static_cast<std::size_t>(type)]),
                  "a name keeps what it was and gets the type's list");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    const QString name = QString::fromStdString(data.ConsumeRandomLengthString(300));
    int type = data.ConsumeIntegralInRange(-2, 20);
    const CVyString filter(QString::fromStdString(data.ConsumeRemainingBytesAsString()));
    const CVyString converted = CVyUtils::ConvertToQtFilter(filter);
    const std::vector<CVyString> lists = VyFileTypeList::extensionLists(converted);

    FakeFamily::reset();
    FakeFamily::script().results = QStringList{name};
    FakeFamily::script().typeIndex = type;
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    CVyString path;
    const int status = CVyFileDialog::GetFileName(
        nullptr, &path, 0, CVyUserIO::FileNameSave, CVyString(), CVyString(), filter, CVyString(),
        &type, nullptr, CVyUserIO::FileNameNoFlags, nullptr);
    Fuzz::require(status == VyStatus::Accepted, "accepted");
    // What the host gave counts where the back-end has no answer: it is the same here.
    checkSaved(QString(CVyString(name)), path, lists, type);

    const QStringList lists2 =
        VyFileTypeList::splitLists(VyFileTypeList::fromConverted(converted).extensionLists);
    for (const QString& list : lists2) {
        const QStringList extensions = VyFileTypeList::splitExtensions(list);
        const QDir nowhere(QStringLiteral("/nowhere"));
        const QString shown = VyFileTypeList::nameForType(nowhere, name, extensions);
        Fuzz::require(shown == name || extensions.isEmpty() ||
                          shown.endsWith('.' + extensions.constFirst()),
                      "the name field gets the first extension");
    }
    return 0;
}
