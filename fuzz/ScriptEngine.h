// SPDX-License-Identifier: MIT
// For targets that run a script engine. Include it once.
#pragma once

//! The leak checker cannot scan the heap of the script engine.
extern "C" Q_DECL_EXPORT const char *__asan_default_options()
{
    return "detect_leaks=0";
}
