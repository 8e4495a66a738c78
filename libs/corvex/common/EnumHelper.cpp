// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"

namespace Halvane::Corvex::Common {

QMetaEnum EnumHelper::metaEnum(const QString &name)
{
    const QMetaObject &meta = staticMetaObject;
    return meta.enumerator(meta.indexOfEnumerator(name.toLatin1().constData()));
}

} // namespace Halvane::Corvex::Common
