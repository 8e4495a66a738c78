// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

class Project;

//! The type of a value in an expression, as far as checks can determine it.
enum class ValueType {
    Unknown,
    Boolean,
    Number,
    Text,
    Color,
    Fieldbus, //!< the description of a connection, which has no value
};

//! For a variable, its type in the project counts, not the type in the term.
ValueType valueTypeOf(const GeneralDataInfo &term, const Project &project);
//! The type of the variable with that name.
ValueType valueTypeOfVariable(const QString &name, const Project &project);
//! "a number". Translated.
QString valueTypeName(ValueType type);

} // namespace Halvane::Corvex::Designer
