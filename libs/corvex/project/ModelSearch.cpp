// SPDX-License-Identifier: MIT
// The half of the value records that walks the model: their text half knows nothing of it.
#include "corvex/core/DesignerObject.h"
#include "corvex/values/IdentifierInfo.h"
#include "corvex/values/ObjectLinkInfo.h"

namespace Halvane::Corvex::Designer {

namespace {

//! How many siblings of \a object, itself left out, bear \a name.
qsizetype siblingsNamed(const DesignerObject *object, const QString &name)
{
    const SharedProperty list = object->listProperty();
    if (!list) {
        return 0;
    }
    return list->listItemCount(name) - (object->getIdName() == name ? 1 : 0);
}

} // namespace

bool IdentifierInfo::isUnique(const DesignerObject *object) const
{
    return !object || siblingsNamed(object, m_name) == 0;
}

QString IdentifierInfo::generateUniqueId(const DesignerObject *object, const QString &base, int number)
{
    QString name = generateId(base, number);
    while (object && !name.isEmpty() && siblingsNamed(object, name) > 0) {
        name = generateId(base, ++number);
    }
    return name;
}

QList<DesignerObject *> ObjectLinkInfo::findLinks(const DesignerObject *, bool) const
{
    return {};
}

} // namespace Halvane::Corvex::Designer
