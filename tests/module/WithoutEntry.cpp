// SPDX-License-Identifier: MIT
// A module of native panels that has nothing of one.
