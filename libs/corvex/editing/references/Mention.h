// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFlags>
#include <QString>

#include <functional>

namespace Halvane::Corvex::Designer {

//! What a name can stand for.
enum class NamedKind : quint8 { Element = 1, Variable = 2, Screen = 4, Image = 8 };
Q_DECLARE_FLAGS(NamedKinds, NamedKind)
Q_DECLARE_OPERATORS_FOR_FLAGS(NamedKinds)

/*! One place in a value at which it names an object. What is handed one may give it another path, or drop it;
    the value is then rewritten around it. */
struct CORVEX_EXPORT Mention
{
    NamedKinds kinds; //!< what the path may name, by the value alone
    QString path;     //!< a name, or names joined with "."; of a term all but the property
    bool isDropped = false;

    bool operator==(const Mention &other) const = default;
};

using MentionVisitor = std::function<void(Mention &)>;

} // namespace Halvane::Corvex::Designer
