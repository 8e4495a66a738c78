// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

class Project;

//! What type of value a term of an expression stands for, as far as checks can tell.
enum class ValueType {
    Unknown,
    Boolean,
    Number,
    Text,
    Color,
    Fieldbus, //!< the description of a connection, which has no value
};

//! Of a variable the type that it has in the project counts, not the one that the term was written for.
ValueType valueTypeOf(const GeneralDataInfo &term, const Project &project);
//! The type of the variable with that name.
ValueType valueTypeOfVariable(const QString &name, const Project &project);
//! "a number". Translated.
QString valueTypeName(ValueType type);

} // namespace Halvane::Corvex::Designer
