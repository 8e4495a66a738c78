// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/NumberRange.h"

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! What a state or an action gives to a property of an element.
struct StateSetting
{
    QString element;
    QString property;
    QString value;

    //! Those of a state or an action; none of a property that is neither.
    static QList<StateSetting> of(const DesignerProperty &property);
    //! The text of the state or action with another value for this setting.
    QString textWith(const DesignerProperty &holder, const QString &newValue) const;
    /*! The numbers that a state or an action may give to \a target. Editors keep a designer from making an
        element invisible. Actions fade elements out, so they may. */
    static NumberRange rangeOf(const DesignerProperty &target);

    friend bool operator==(const StateSetting &, const StateSetting &) = default;
};

} // namespace Halvane::Corvex::Designer
