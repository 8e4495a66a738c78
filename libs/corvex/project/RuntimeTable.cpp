// SPDX-License-Identifier: MIT
#include "corvex/project/RuntimeTable.h"

#include "corvex/common/LocalizationHelper.h"

namespace Halvane::Corvex::Designer {

RuntimePropertyList toRuntimeProperties(const RuntimeRow *begin, const RuntimeRow *end)
{
    const auto translated = [](const char *text) {
        return *text ? Common::LocalizationHelper::coreString(QString::fromUtf8(text)) : QString();
    };
    QList<RuntimeProperty> properties;
    for (const RuntimeRow *row = begin; row != end; ++row) {
        properties.append(RuntimeProperty(QString::fromUtf8(row->property), translated(row->displayName),
                                          row->type, row->access, translated(row->description)));
    }
    RuntimePropertyList list;
    list.append(properties);
    return list;
}

} // namespace Halvane::Corvex::Designer
