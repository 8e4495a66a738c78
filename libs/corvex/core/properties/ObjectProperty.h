// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! One child object. Its text is the child's XML; it writes no QML.
class CORVEX_EXPORT ObjectProperty : public DesignerProperty
{
    CORVEX_CLASS_NAMES(ObjectProperty, DesignerProperty)

public:
    //! \a initialValue, which must not have an owner, becomes the child of \a parent. Later children are set
    //! through the parent object.
    ObjectProperty(DesignerObject *parent, const QString &id, const QString &name,
                   DesignerObject *initialValue = nullptr);

    bool convertToValue(const QString &text) override;
    QString convertToValueString() const override;
    bool valueIsEqual(const QString &text) const override;
    bool validateValue(QString &error) const override;

protected:
    using DesignerProperty::DesignerProperty;
};

} // namespace Halvane::Corvex::Designer
