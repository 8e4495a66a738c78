// SPDX-License-Identifier: MIT
#include "corvex/project/HardwareElement.h"

#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

void HardwareElement::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    if (screen() && property->id() == "channel"_L1) {
        screen()->elementIndex().forgetChannels();
    }
    Element::afterPropertyChanged(property, previousValue);
}

} // namespace Halvane::Corvex::Designer
