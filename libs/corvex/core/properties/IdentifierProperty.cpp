// SPDX-License-Identifier: MIT
#include "corvex/core/properties/IdentifierProperty.h"

#include "corvex/core/QmlText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

IdentifierProperty::IdentifierProperty(DesignerObject *parent, const QString &id, const QString &name,
                                       const IdentifierInfo &initialValue)
    : TypedProperty(parent, id, name, initialValue)
{
    setEditor(u"IdentifierEditor"_s);
    setFlags(StoredFlag);
}

QString IdentifierProperty::convertToQml(int indent) const
{
    return QmlText::line(indent, id(), QmlText::reference(value().name()));
}

} // namespace Halvane::Corvex::Designer
