// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFlags>
#include <QString>

#include <functional>

namespace Halvane::Corvex::Designer {

//! The kinds of objects that a name can refer to.
enum class NamedKind : quint8 { Element = 1, Variable = 2, Screen = 4, Image = 8 };
Q_DECLARE_FLAGS(NamedKinds, NamedKind)
Q_DECLARE_OPERATORS_FOR_FLAGS(NamedKinds)

//! One place in a value that names an object. A visitor may change the path or drop the mention; the value is
//! then rewritten accordingly.
struct CORVEX_EXPORT Mention
{
    NamedKinds kinds; //!< what the path can refer to, judging by the value alone
    QString path;     //!< a name, or names joined with "."; for an expression term without the property
    bool isDropped = false;

    bool operator==(const Mention &other) const = default;
};

using MentionVisitor = std::function<void(Mention &)>;

} // namespace Halvane::Corvex::Designer
