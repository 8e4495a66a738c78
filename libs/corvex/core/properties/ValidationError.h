// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

//! Writes the messages of the property classes' value checks, and contains those that several of them use.
//! Checks that look beyond a property have their own messages: PropertyValidators.
namespace Halvane::Corvex::Designer::ValidationError {

inline constexpr auto *invalidColor = "The color is invalid. Please choose a valid color.";
inline constexpr auto *minimumAboveMaximum = "The minimum value cannot be greater than the maximum value.";

//! Writes the translated \a sentence into \a error and returns false, so that a check can return the result.
CORVEX_EXPORT bool set(QString &error, const char *sentence);
//! The same for a sentence with a number for %1.
CORVEX_EXPORT bool set(QString &error, const char *sentence, int number);
//! The same for a sentence with a text for %1.
CORVEX_EXPORT bool set(QString &error, const char *sentence, const QString &text);

} // namespace Halvane::Corvex::Designer::ValidationError
