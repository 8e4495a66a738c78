// SPDX-License-Identifier: MIT
#include "corvex/core/properties/LinkProperty.h"

#include "corvex/core/QmlText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

LinkProperty::LinkProperty(DesignerObject *parent, const QString &id, const QString &name,
                           const ObjectLinkInfo &initialValue)
    : TypedProperty(parent, id, name, initialValue)
{
    setEditor(u"LinkEditor"_s);
    setFlags(PropertyFlags(StoredFlag) | EditableFlag | StateFlag);
}

DesignerObject *LinkProperty::connectLink() const
{
    return value().objectId().isEmpty() ? nullptr : value().findLinks(parentObject(), false).value(0);
}

QString LinkProperty::convertToQml(int indent) const
{
    return QmlText::line(indent, id(),
                         value().objectId().isEmpty() ? u"null"_s : QmlText::reference(value().objectId()));
}

} // namespace Halvane::Corvex::Designer
