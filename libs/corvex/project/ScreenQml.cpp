// SPDX-License-Identifier: MIT
// The QML document of a screen.
#include "corvex/common/ConfigurationInfo.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/variables/MappingVariable.h"

#include <mutex>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The lists of a screen document in their order, with the class whose elements each holds.
constexpr struct
{
    const char *className;
    const char *list;
    bool isSerialPort = false;
} qmlLists[] = {
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
constexpr int listCount = int(std::size(qmlLists));

//! Elements that stand in no list follow them: first what is drawn, then the rest.
constexpr int visualGroup = listCount;
constexpr int otherGroup = listCount + 1;

//! Where an element goes: the index of its list, visualGroup or otherGroup.
int groupOf(const DesignerObject *item)
{
    if (item->isKindOfClass(u"VisualElement"_s)) {
        return visualGroup;
    }
    const QStringList classNames = item->classNames();
    const auto entry = std::find_if(std::begin(qmlLists), std::end(qmlLists), [&](const auto &list) {
        return classNames.contains(QLatin1StringView(list.className));
    });
    return entry == std::end(qmlLists) ? otherGroup : int(entry - std::begin(qmlLists));
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

/*! The code of a serial port contains the address map of its variable, which is told the screen before. So
   only one of the threads that write screens may do this at a time. */
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
    QStringList blocks[listCount + 2];
    for (const DesignerObject *item : elements()->listItems()) {
        const int group = groupOf(item);
        const bool isPort = group < listCount && qmlLists[group].isSerialPort;
        const int itemIndent = group < listCount ? indent + 1 : indent;
        blocks[group].append(isPort ? portToQml(item, *this, itemIndent) : item->toQml(itemIndent));
    }
    QStringList lists;
    for (int i = 0; i < listCount; ++i) {
        if (!blocks[i].isEmpty()) {
            lists.append(u"%1%2: [\n%3\n%1]"_s.arg(getTabs(indent), QString::fromLatin1(qmlLists[i].list),
                                                   blocks[i].join(u",\n"_s)));
        }
    }
    return lists + blocks[visualGroup] + blocks[otherGroup];
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
