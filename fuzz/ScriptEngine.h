// SPDX-License-Identifier: MIT
// For a target that runs a script engine; included once.
#pragma once

//! The leak checker does not see into the heap of the script engine.
extern "C" Q_DECL_EXPORT const char *__asan_default_options()
{
    return "detect_leaks=0";
}
