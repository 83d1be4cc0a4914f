// SPDX-License-Identifier: MIT
#pragma once

#include "HostRequest.h"
#include "HostState.h"

#include <QDialogButtonBox>

/// A host one of whose requests meets a fault. Made before the request.
class UnharmedHost
{
public:
    /// Fails the test when something in the host is not as it was before, or its next
    /// request does not work, in which the user opens a drawing.
    void expectUnharmed();

private:
    HostState m_state;
};

/// A request to open a file of any name. Its type index names no type: a request
/// that is accepted writes another one.
HostRequest openRequest(const QString& start);

/// Clicks \a button, which the dialog's box must have.
void clickButton(QFileDialog& dialog, QDialogButtonBox::StandardButton button);

/// A step for the dialog's own message that a file is not there, which the user closes.
/// Its text begins with \a text.
DialogDriver::Step closeMessage(const QString& text);

/// What the user who has cancelled leaves of an openRequest(): the mode alone is
/// written.
void expectCancelled(const HostRequest& request);

/// What a request that has failed leaves of an openRequest(): everything.
void expectNothingWritten(const HostRequest& request);

/// What an openRequest() has given its caller when the user has chosen \a file.
void expectChosen(const HostRequest& request, const QString& file);
