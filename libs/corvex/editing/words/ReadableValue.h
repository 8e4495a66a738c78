// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QString>

namespace Halvane::Corvex::Designer {

/*! The values of properties in the form that people write: `level > 10 and pump.visible` for an expression,
    `120 x 40` for a size, `{ lamp.color: #C62828 }` for a state.

    Each form belongs to a kind of property. A value without a readable form is written as it is stored.
*/
class CORVEX_EXPORT ReadableValue
{
public:
    struct Reading
    {
        QString stored; //!< the text for the property
        QString error;  //!< for the user; empty if the text could be read
    };
    //! Reads the readable or the stored form of a value of \a property. Whether the property accepts the
    //! value is not checked.
    static Reading read(const DesignerProperty &property, const QString &text);

    //! The readable form of a value of \a property, which read() reads as the same stored text.
    static QString print(const DesignerProperty &property, const QString &stored);
    static QString print(const DesignerProperty &property) { return print(property, property.valueString()); }
};

} // namespace Halvane::Corvex::Designer
