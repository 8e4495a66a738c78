// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/NumberRange.h"

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! A new value that a state or an action sets for a property of an element.
struct StateSetting
{
    QString element;
    QString property;
    QString value;

    //! The settings of a state or an action; none for any other property.
    static QList<StateSetting> of(const DesignerProperty &property);
    //! The text of the state or action with another value for this setting.
    QString textWith(const DesignerProperty &holder, const QString &newValue) const;
    //! The numbers that a state or an action may set for \a target. Editors prevent almost invisible
    //! elements, but actions may fade elements out.
    static NumberRange rangeOf(const DesignerProperty &target);

    friend bool operator==(const StateSetting &, const StateSetting &) = default;
};

} // namespace Halvane::Corvex::Designer
