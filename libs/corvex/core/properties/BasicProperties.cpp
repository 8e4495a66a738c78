// SPDX-License-Identifier: MIT
#include "corvex/core/properties/BasicProperties.h"

#include "corvex/common/LocalizationHelper.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QString StringProperty::formText() const
{
    if (references() == Form::Expressions) {
        return Common::LocalizationHelper::coreString(u"rules such as when level > 10 do alarm = true"_s);
    }
    const QString example = editorParameter(u"example"_s).toString();
    return example.isEmpty() ? Common::LocalizationHelper::coreString(u"any text"_s)
                             : FormText::example(example);
}

} // namespace Halvane::Corvex::Designer
