// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class QString;

/// Keeps the last reason that the dialogs give on Qt's log, while it lives. All
/// messages go on as before.
class LibraryMessages
{
public:
    LibraryMessages();
    ~LibraryMessages();
    Q_DISABLE_COPY(LibraryMessages)

    /// What was said, without what all of it begins with; empty for nothing.
    QString last() const;
};
