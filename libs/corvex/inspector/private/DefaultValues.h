// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

//! The values of new objects. An object of each class is created on first use.
class DefaultValues
{
public:
    //! The text of the property in a new object of the class. Null for names, for values that are not stored,
    //! and for objects of unknown classes.
    QString of(const DesignerProperty &property);

private:
    QHash<QString, QHash<QString, QString>> m_texts; //!< by class and id
};

} // namespace Halvane::Corvex::Designer
