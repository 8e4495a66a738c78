// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

//! How the value checks of the property classes write their sentences, and those that several of them use.
//! What looks beyond a property writes its own: PropertyValidators.
namespace Halvane::Corvex::Designer::ValidationError {

inline constexpr auto *invalidColor = "The color is invalid. Please choose a valid color.";
inline constexpr auto *minimumAboveMaximum = "The minimum value cannot be greater than the maximum value.";

//! Writes the translation of \a sentence into \a error and returns false, which a check can return in turn.
CORVEX_EXPORT bool set(QString &error, const char *sentence);
//! The same of a sentence with a number in the place of %1.
CORVEX_EXPORT bool set(QString &error, const char *sentence, int number);
//! The same of a sentence with a text in the place of %1.
CORVEX_EXPORT bool set(QString &error, const char *sentence, const QString &text);

} // namespace Halvane::Corvex::Designer::ValidationError
