// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// The statuses of requests.

/// What a request, and every operation of a back-end, answers: a plain int.
namespace VyStatus {

constexpr int Accepted = 5100;        ///< success; the user accepted the dialog
constexpr int NothingSelected = 5000; ///< there is no selected path
constexpr int Failed = -5001;         ///< no back-end, a null output, or a value not found
constexpr int Cancelled = -5002;      ///< the dialog ended without an accepted selection

} // namespace VyStatus
