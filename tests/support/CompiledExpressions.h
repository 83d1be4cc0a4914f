// SPDX-License-Identifier: MIT
#pragma once

/// How many regular expressions this process has compiled so far. The count comes
/// from standing before the library that Qt has them compiled by.
int compiledExpressions();

/// Whether they are counted: not where Qt has that library built in.
bool countsExpressions();
