// SPDX-License-Identifier: MIT
#include "DrawingRequest.h"
#include "Measurement.h"

#include <QFileDialog>

namespace {

QString nameFilters(const DrawingRequest& request)
{
    QStringList filters;
    for (const FileType& type : request.types)
        filters.append(QStringLiteral("%1 (%2)").arg(type.description, type.patterns.join(' ')));
    return filters.join(QStringLiteral(";;"));
}

} // namespace

DrawingRequest drawingRequest()
{
    QStringList patterns{QStringLiteral("*.dwg"), QStringLiteral("*.dxf"), QStringLiteral("*.dwt"),
                         QStringLiteral("*.dws"), QStringLiteral("*.dwf"), QStringLiteral("*.bak")};
    return {Measurement::argument("folder"),
            {{QStringLiteral("Drawings"), patterns.mid(0, Measurement::number("patterns", 1))},
             {QStringLiteral("All files"), {QStringLiteral("*.*")}}}};
}

// The folder and the types are given to the constructor: set later, the dialog
// would first begin to read another folder, and the floor would be too high.
QString askFloor(const DrawingRequest& request)
{
    QFileDialog dialog(nullptr, QStringLiteral("Open Drawing"), request.folder,
                       nameFilters(request));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setDefaultSuffix(QStringLiteral("dwg"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
