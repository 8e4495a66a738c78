// SPDX-License-Identifier: MIT
#include "corvex/core/properties/LinkProperty.h"

#include "corvex/common/LocalizationHelper.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ObjectLinkInfo LinkProperty::checked(const ObjectLinkInfo &link) const
{
    ObjectLinkInfo checkedLink = link;
    if (const QVariant scope = editorParameter(u"scopeType"_s); scope.isValid()) {
        checkedLink.setScopeType(scope.toString());
    }
    if (const QVariant filter = editorParameter(u"filterType"_s); filter.isValid()) {
        checkedLink.setFilterType(filter.toStringList());
    }
    return checkedLink;
}

DesignerObject *LinkProperty::connectLink() const
{
    return value().isValid() ? checked(value()).findLinks(parentObject(), false).value(0) : nullptr;
}

DesignerObject *LinkProperty::namesake() const
{
    ObjectLinkInfo ofAnyClass = checked(value());
    ofAnyClass.setFilterType(QStringList());
    return value().isValid() ? ofAnyClass.findLinks(parentObject(), false).value(0) : nullptr;
}

QmlBindings LinkProperty::convertToBindings() const
{
    // In QML a member of a group has its own name as id, which is the last part of the path in the link.
    const DesignerObject *target = value().objectId().contains(u'.') ? connectLink() : nullptr;
    if (!target) {
        return TypedProperty::convertToBindings();
    }
    ObjectLinkInfo direct = value();
    direct.setObjectId(target->getIdName());
    return QmlForm<ObjectLinkInfo>::bindings(*this, direct);
}

bool LinkProperty::validateValue(QString &error) const
{
    const DesignerObject *target = namesake();
    if (!target || connectLink()) {
        return true;
    }
    error = Common::LocalizationHelper::coreString(
                u"\"%1\" is of the class %2, and the link needs an object of the class %3."_s)
                .arg(value().objectId(), target->className(), checked(value()).filterType().join(u", "_s));
    return false;
}

QString LinkProperty::formText() const
{
    const QStringList classes = checked(value()).filterType();
    return classes.isEmpty()
               ? Common::LocalizationHelper::coreString(u"the name of an object"_s)
               : Common::LocalizationHelper::coreString(u"the name of an object of the class %1"_s)
                     .arg(classes.join(u" or "_s));
}

} // namespace Halvane::Corvex::Designer
