// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! One child object. Its text is the child's XML; it writes no QML.
class ObjectProperty : public DesignerProperty
{
    CORVEX_CLASS_NAMES(ObjectProperty, DesignerProperty)

public:
    //! The child is set through the parent object; there is none at the start.
    ObjectProperty(DesignerObject *parent, const QString &id, const QString &name,
                   std::nullptr_t initialValue = nullptr);

protected:
    using DesignerProperty::DesignerProperty;
    bool convertToValue(const QString &text) override;
    QString convertToValueString() const override;
    bool valueIsEqual(const QString &text) const override;
    bool validateValue(QString &error) const override;
};

} // namespace Halvane::Corvex::Designer
