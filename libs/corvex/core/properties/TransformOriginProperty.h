// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"

#include <QQuickItem>

namespace Halvane::Corvex::Designer {

template<>
struct CORVEX_EXPORT TextForm<QQuickItem::TransformOrigin>
{
    static QQuickItem::TransformOrigin parse(const QString &text, bool *ok);
    static QString print(QQuickItem::TransformOrigin origin);
};

//! id: Item.TopLeft
template<>
struct CORVEX_EXPORT QmlForm<QQuickItem::TransformOrigin>
{
    static QmlBindings bindings(const DesignerProperty &property, QQuickItem::TransformOrigin origin);
};

//! The point about which an item rotates and scales. Its text is the name of the enumerator.
class CORVEX_EXPORT TransformOriginProperty : public TypedProperty<QQuickItem::TransformOrigin>
{
    CORVEX_CLASS_NAMES(TransformOriginProperty, DesignerProperty)

public:
    TransformOriginProperty(DesignerObject *parent, const QString &id, const QString &name,
                            const QQuickItem::TransformOrigin &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "TransformOriginEditor")
    { }
    TransformOriginProperty(DesignerObject *parent, const QString &id, const QString &name,
                            const QString &originName)
        : TransformOriginProperty(parent, id, name, stringToEnum(originName))
    { }

    //! Center, with ok false, for an unknown name.
    static QQuickItem::TransformOrigin stringToEnum(const QString &name, bool *ok = nullptr);
    static QStringList names();
    //! Empty for an invalid number.
    static QString enumToString(QQuickItem::TransformOrigin origin);

protected:
    using TypedProperty::TypedProperty;
    //! Lists the names.
    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
