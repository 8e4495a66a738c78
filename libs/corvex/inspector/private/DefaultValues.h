// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

//! The values of new objects. One object of each class is made when somebody first asks.
class DefaultValues
{
public:
    //! The text that the property has in a new object of the class. Null for names, for values that are not
    //! stored, and for objects of a class that the factory does not know.
    QString of(const DesignerProperty &property);

private:
    QHash<QString, QHash<QString, QString>> m_texts; //!< by class and id
};

} // namespace Halvane::Corvex::Designer
