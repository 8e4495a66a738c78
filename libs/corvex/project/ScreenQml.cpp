// SPDX-License-Identifier: MIT
// The QML document of a screen.
#include "corvex/common/ConfigurationInfo.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/variables/MappingVariable.h"

#include <algorithm>
#include <map>
#include <mutex>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The lists of the device, in the order of documents, and the class whose elements each holds. Lists that
//! plug-ins name in their tables follow.
constexpr struct
{
    const char *className;
    const char *name;
    bool holdsSerialPorts = false;
} deviceLists[] = {
    {"AlarmOutput", "alarmOutputs"},
    {"AnalogInput", "analogInputs"},
    {"DigitalInputOutput", "digitalIOs"},
    {"PwmOutput", "pwmOutputs"},
    {"SPIPort", "spiPorts"},
    {"SerialCOMPort", "serialCOMPorts", true},
    {"RS485COMPort", "rs485COMPorts", true},
    {"ThermistorInput", "thermistorInputs"},
    {"ThermocoupleInput", "thermocoupleInputs"},
    {"EthernetPort", "ethernetPorts"},
    {"CANBusDevice", "canBusPorts"},
    {"I2CBus", "i2CBusPorts"},
    {"FunctionElement", "functions"},
};

//! The index of a device list; for other lists the number of device lists.
std::ptrdiff_t placeOf(const QString &listName)
{
    const auto isNamed = [&listName](const auto &list) { return listName == QLatin1StringView(list.name); };
    return std::ranges::find_if(deviceLists, isNamed) - std::begin(deviceLists);
}

//! Empty for an element that no list holds.
QString documentListOf(const DesignerObject &element)
{
    if (element.isKindOfClass(VisualElement::kindName())) {
        return {};
    }
    const QString named = DesignerFactory::screenListOf(&element);
    const QStringList classNames = named.isEmpty() ? element.classNames() : QStringList();
    const auto holds = [&classNames](const auto &list) {
        return classNames.contains(QLatin1StringView(list.className));
    };
    const auto *list = std::ranges::find_if(deviceLists, holds);
    return list == std::end(deviceLists) ? named : QString::fromLatin1(list->name);
}

void announceScreen(const DesignerObject *port, const Screen &screen)
{
    const SharedProperty mapping = port->getProperty(u"mapping");
    if (!mapping || !screen.project()) {
        return;
    }
    const QString name = ObjectLinkInfo(mapping->valueString()).objectId();
    auto *variable = kindCast<MappingVariable>(screen.project()->variables()->getListItem(name));
    if (variable) {
        variable->setQmlActiveScreen(screen.getIdName());
    }
}

//! The code of a serial port contains the address map of its variable, which must know the screen. Therefore
//! only one of the threads that write screens may do this at a time.
QString portToQml(const DesignerObject *port, const Screen &screen, int indent)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    announceScreen(port, screen);
    return port->toQml(indent);
}

int brightnessOf(const Screen &screen)
{
    constexpr int full = 100;
    const auto *configuration =
        screen.project() ? kindCast<Configuration>(screen.project()->configuration()->objectValue())
                         : nullptr;
    return configuration ? configuration->toConfigurationInfo().displayBrightness() : full;
}

} // namespace

QStringList Screen::elementLists(int indent) const
{
    std::map<std::pair<std::ptrdiff_t, QString>, QStringList> lists;
    QStringList visible;
    QStringList others;
    for (const DesignerObject *item : elements()->listItems()) {
        const QString name = documentListOf(*item);
        if (name.isEmpty()) {
            (item->isKindOfClass(VisualElement::kindName()) ? visible : others).append(item->toQml(indent));
            continue;
        }
        const std::ptrdiff_t place = placeOf(name);
        const bool isPort = place < std::ssize(deviceLists) && deviceLists[place].holdsSerialPorts;
        lists[{place, name}].append(isPort ? portToQml(item, *this, indent + 1) : item->toQml(indent + 1));
    }
    QStringList written;
    for (const auto &[list, blocks] : lists) {
        written.append(u"%1%2: [\n%3\n%1]"_s.arg(getTabs(indent), list.second, blocks.join(u",\n"_s)));
    }
    // Elements without a list come last: first visual ones, then the others.
    return written + visible + others;
}

QString Screen::toQml(int indent) const
{
    const QString tabs = getTabs(indent);
    QString text = u"import QtQuick 1.1\nimport RuntimeObjects 2.0\n"_s + tabs + qmlName() + u" {\n"_s;
    appendMembers(text, indent + 1, elements().data());
    QStringList parts{u"%1\tbrightness : %2\n"_s.arg(tabs, QString::number(brightnessOf(*this)))};
    parts += elementLists(indent + 1);
    const QString completed = onCompletedQml(indent);
    if (!completed.isEmpty()) {
        parts.append(u"%1\tComponent.onCompleted: {"_s.arg(tabs));
        parts.append(completed);
        parts.append(tabs + u"\t}"_s);
    }
    return text + parts.join(u'\n') + u"\n%1}\n"_s.arg(tabs);
}

QString Screen::onCompletedQml(int indent) const
{
    QStringList pieces;
    for (const DesignerObject *item : elements()->listItems()) {
        const QString piece = item->onCompletedQml(indent + 1);
        if (!piece.isEmpty()) {
            pieces.append(piece);
        }
    }
    return pieces.join(u'\n');
}

} // namespace Halvane::Corvex::Designer
