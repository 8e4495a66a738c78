// SPDX-License-Identifier: MIT
// The consequences of an edit of a device configuration: changes of other values, visibility in the property
// panel, and new validation.
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationRules.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::EnumHelper;

namespace {

//! The lines of RS485 right after it is switched on. The user must choose the direction line; until then the
//! list is incomplete.
constexpr auto firstRS485Lines = "RECEIVE, SEND, UNUSED, UNUSED"_L1;
constexpr auto freeRS485Lines = "UNUSED, UNUSED, UNUSED, UNUSED"_L1;
constexpr auto firstSPIPins = "UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, CSPIN"_L1;

QString withoutPwmLines(const ChannelList &current)
{
    ChannelList channels = current;
    for (int line = 1; line <= RS485Lines::pwmLines; ++line) {
        channels.release(line);
    }
    return channels.toString();
}

QString withoutDigitalLine(const ChannelList &current)
{
    ChannelList channels = current;
    channels.release(RS485Lines::digitalChannel);
    return channels.toString();
}

QString withoutRS485Words(const ChannelList &current)
{
    ChannelList channels = current;
    channels.release({EnumHelper::RECEIVE, EnumHelper::SEND, EnumHelper::DIRECTION});
    return channels.toString();
}

QString withoutChipSelect(const ChannelList &current)
{
    ChannelList channels = current;
    channels.release({EnumHelper::CSPIN});
    return channels.toString();
}

} // namespace

//! What a switch writes into a channel list when it changes.
struct Configuration::Reaction
{
    Place onSwitch;
    bool on;
    Place target;
    QString (*rewritten)(const ChannelList &);
    bool needsSharedPins = false;
};

const QList<Configuration::Reaction> &Configuration::reactions()
{
    // Free pins before other channels take them.
    static const QList<Reaction> table{
        {EnableRS485, true, PwmOutputs, withoutPwmLines, true},
        {EnableRS485, true, DigitalInputOutputs, withoutDigitalLine, true},
        {EnableRS485, true, SerialRS485Ports, [](const ChannelList &) { return QString(firstRS485Lines); }},
        {EnableRS485, false, SerialRS485Ports, [](const ChannelList &) { return QString(freeRS485Lines); }},
        {EnableRS485, false, PwmOutputs, withoutRS485Words},
        {EnableRS485, false, DigitalInputOutputs, withoutRS485Words},
        {EnableSPIChipSelect, true, SpiChipSelect, [](const ChannelList &) { return QString(firstSPIPins); }},
        {EnableSPIChipSelect, false, SpiChipSelect, withoutChipSelect},
        {EnableSPIChipSelect, false, DigitalInputOutputs, withoutChipSelect},
    };
    return table;
}

//! When the panel shows a property: while its switch is on, or while it is not empty.
struct Configuration::Visibility
{
    Place property;
    Place onSwitch; //!< Name: without a switch
    bool hasEntries;
};

const QList<Configuration::Visibility> &Configuration::visibilities()
{
    static const QList<Visibility> table{
        {AnalogInputs, Name, true},
        {AlarmOutputs, Name, true},
        {PwmOutputs, Name, true},
        {SerialCOMPorts, Name, true},
        {DigitalInputOutputs, Name, true},
        {CompatibleModels, Name, true},
        {SerialRS485Ports, EnableRS485, true},
        {SpiChipSelect, EnableSPIChipSelect, false},
        {Password, EnablePassword, false},
        {UploadPassword, EnableUpload, false},
    };
    return table;
}

//! Properties whose rules depend on another property.
struct Configuration::Revalidation
{
    Place changed;
    Place validated;
};

const QList<Configuration::Revalidation> &Configuration::revalidations()
{
    static const QList<Revalidation> table{
        {Name, PwmOutputs},
        {Name, DigitalInputOutputs},
        {Name, SerialRS485Ports},
        {EnableRS485, PwmOutputs},
        {EnableRS485, DigitalInputOutputs},
        {EnableRS485, SerialRS485Ports},
        {SerialRS485Ports, PwmOutputs},
        {SerialRS485Ports, DigitalInputOutputs},
        {PwmOutputs, SerialRS485Ports},
        {DigitalInputOutputs, SerialRS485Ports},
        {EnablePassword, Password},
        {EnableUpload, UploadPassword},
    };
    return table;
}

QList<std::pair<SharedProperty, QString>> Configuration::followingChanges(const DesignerProperty &property,
                                                                          const QString &value) const
{
    QList<std::pair<SharedProperty, QString>> changes;
    for (const Reaction &reaction : reactions()) {
        if (at(reaction.onSwitch) != &property || ValueConversion::toBoolean(value) != reaction.on
            || (reaction.needsSharedPins && !sharesRS485Pins())) {
            continue;
        }
        const ChannelList current(textOf(reaction.target));
        const QString rewritten = reaction.rewritten(current);
        if (ChannelList(rewritten).words() != current.words()) {
            changes.append({at(reaction.target), rewritten});
        }
    }
    return changes;
}

void Configuration::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    FileObject::afterPropertyChanged(property, previousValue);
    // While a file is read, its own lists count.
    if (!disabledValidation()) {
        for (const auto &[target, value] : followingChanges(*property, property->valueString())) {
            changePropertyValue(target, value);
        }
        revalidateAfter(*property);
    }
    updateVisibility(property);
}

bool Configuration::isShown(const Visibility &visibility) const
{
    if (visibility.onSwitch != Name && isOn(visibility.onSwitch)) {
        return true;
    }
    if (visibility.property == CompatibleModels) {
        return allCompatibleModels().size() > 1;
    }
    return visibility.hasEntries && ChannelList(textOf(visibility.property)).isAnyUsed();
}

void Configuration::updateVisibility(const DesignerProperty *changed)
{
    for (const Visibility &visibility : visibilities()) {
        const SharedProperty &property = at(visibility.property);
        const bool isSwitched = visibility.onSwitch != Name && at(visibility.onSwitch) == changed;
        if (changed && property != changed && !isSwitched) {
            continue;
        }
        const bool isVisible = property->editorParameters().value(u"visible"_s, true).toBool();
        if (const bool shown = isShown(visibility); shown != isVisible) {
            property->setEditorParameter(u"visible"_s, shown);
        }
    }
}

void Configuration::revalidateAfter(const DesignerProperty &changed)
{
    bool isValidated = false;
    for (const Revalidation &revalidation : revalidations()) {
        if (at(revalidation.changed) == &changed) {
            at(revalidation.validated)->validate();
            isValidated = true;
        }
    }
    if (isValidated) {
        updateValidity();
    }
}

} // namespace Halvane::Corvex::Designer
