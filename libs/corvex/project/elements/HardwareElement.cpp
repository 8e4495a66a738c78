// SPDX-License-Identifier: MIT
#include "corvex/project/elements/HardwareElement.h"

#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Limits validation, so that pasting thousands of elements with the same channel does not validate all of
//! them each time.
constexpr qsizetype mostSharers = 64;

} // namespace

void HardwareElement::setScreen(Screen *newScreen)
{
    const Screen *oldScreen = screen();
    Element::setScreen(newScreen);
    const SharedProperty channel = oldScreen != newScreen ? getProperty(u"channel") : SharedProperty();
    if (channel && !disabledValidation()) {
        validateOthersOn(oldScreen, channel->valueString());
        validateOthersOn(newScreen, channel->valueString());
    }
}

void HardwareElement::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    if (screen() && property->id() == "channel"_L1) {
        screen()->elementIndex().changeChannel(this, previousValue);
        validateOthersOn(screen(), previousValue);
        validateOthersOn(screen(), property->valueString());
    }
    Element::afterPropertyChanged(property, previousValue);
}

void HardwareElement::validateOthersOn(const Screen *on, const QString &channel) const
{
    const auto others = on ? on->elementIndex().withChannel(className(), channel) : QList<DesignerObject *>();
    // Beyond that number all of them are marked already. A message may still name an element that was
    // removed.
    if (others.size() > mostSharers) {
        return;
    }
    for (DesignerObject *other : others) {
        if (other != this) {
            other->validate();
        }
    }
}

} // namespace Halvane::Corvex::Designer
