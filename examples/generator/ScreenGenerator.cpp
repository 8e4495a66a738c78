// SPDX-License-Identifier: MIT
#include "ScreenGenerator.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/DeviceChannels.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/RangeInfo.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/values/text/PairList.h"
#include "corvex/values/text/ValueConversion.h"

#include "ProjectBuilder.h"

#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

constexpr int columns = 9;
constexpr int rows = 18;
constexpr QSize cell{140, 44};
constexpr QPoint margin{10, 4};
constexpr int deepestGroup = 3;
constexpr int mostChannels = 16;

} // namespace

const QList<ScreenGenerator::Share> ScreenGenerator::visuals{
    {46, "Text", &ScreenGenerator::fillText},
    {34, "Rectangle", &ScreenGenerator::fillRectangle},
    {12, "Image", &ScreenGenerator::fillImage},
    {8, "GroupElement", nullptr},
};

const QList<ScreenGenerator::Share> ScreenGenerator::functions{
    {26, "Button", &ScreenGenerator::fillButton},
    {10, "CheckButton", &ScreenGenerator::fillCheckButton},
    {8, "NumberSpinner", &ScreenGenerator::fillSpinner},
    {18, "ScreenLoader", &ScreenGenerator::fillScreenLoader},
    {10, "LogicBuilder", &ScreenGenerator::fillLogic},
    {12, "Action", &ScreenGenerator::fillAction},
    {8, "PropertyTrigger", &ScreenGenerator::fillTrigger, 'a'},
    {3, "DataLogging", &ScreenGenerator::fillDataLogging},
    {2, "ModbusCommands", &ScreenGenerator::fillModbusCommands},
    {1, "BACnetService", &ScreenGenerator::fillBACnetService},
    {2, "SPICommunication", &ScreenGenerator::fillSpi},
};

const QList<ScreenGenerator::Share> ScreenGenerator::hardware{
    {22, "DigitalInputOutput", &ScreenGenerator::fillChannel},
    {18, "AnalogInput", &ScreenGenerator::fillChannel},
    {12, "PwmOutput", &ScreenGenerator::fillChannel},
    {12, "AlarmOutput", &ScreenGenerator::fillChannel},
    {10, "SerialCOMPort", &ScreenGenerator::fillSerialPort},
    {6, "RS485COMPort", &ScreenGenerator::fillMapping},
    {5, "ThermistorInput", &ScreenGenerator::fillChannel},
    {5, "ThermocoupleInput", &ScreenGenerator::fillChannel},
    {3, "CANBusDevice", &ScreenGenerator::fillChannel},
    {3, "EthernetPort", &ScreenGenerator::fillChannel},
    {2, "SPIPort", &ScreenGenerator::fillChannel},
    {2, "I2CBus", &ScreenGenerator::fillChannel},
};

ScreenGenerator::ScreenGenerator(ProjectBuilder &builder, Random &random, RandomExpressions &expressions,
                                 const QList<Screen *> &screens, const QStringList &images)
    : m_builder(builder)
    , m_random(random)
    , m_expressions(expressions)
    , m_images(images)
{
    for (const Screen *screen : screens) {
        m_screenNames.append(screen->getIdName());
    }
}

void ScreenGenerator::fill(Screen *screen, int count)
{
    m_screen = screen;
    m_channels.clear();
    m_placed = 0;
    // Elements are only known on their own screen: 'e' all visual ones, 'r' those with a colour, 'a' actions.
    for (const char kind : {'e', 'r', 'a'}) {
        m_expressions.withdraw(kind);
    }
    m_builder.set(screen, "color", color());

    const int hardwareCount = count * 6 / 100;
    const int visualCount = std::max(1, count * 62 / 100);
    int made = 0;
    while (made < visualCount) {
        made += addVisual(screen, visualCount - made, 1);
    }
    for (; made < count - hardwareCount; ++made) {
        addOneOf(functions);
    }
    for (; made < count; ++made) {
        addOneOf(hardware);
    }
    if (m_random.chance(30)) {
        QStringList shown = m_expressions.names('e').mid(0, m_random.between(1, 6));
        m_builder.addFilter(screen, u"filter1"_s, shown);
    }
}

const ScreenGenerator::Share &ScreenGenerator::draw(const QList<Share> &shares)
{
    int place = m_random.below(100);
    for (const Share &share : shares) {
        place -= share.weight;
        if (place < 0) {
            const bool isMissing = share.needs && m_expressions.names(share.needs).isEmpty();
            return isMissing ? shares.first() : share;
        }
    }
    return shares.first();
}

DesignerObject *ScreenGenerator::addElement(DesignerObject *owner, const QString &className)
{
    const QString base = DesignerFactory::instance()->baseNameForClass(className);
    return m_builder.addElement(owner, className, m_screen->uniqueElementName(base));
}

int ScreenGenerator::addVisual(DesignerObject *owner, int room, int depth)
{
    const bool isFirst = m_expressions.names('r').isEmpty();
    const Share *share = isFirst ? &visuals.first() : &draw(visuals);
    if (!share->fill) {
        if (room >= 3 && depth <= deepestGroup) {
            return addGroup(owner, room, depth);
        }
        share = &visuals.first();
    }
    DesignerObject *element = addElement(owner, QString::fromLatin1(share->className));
    (this->*share->fill)(element);
    m_expressions.offer('e', element->getIdName());
    if (element->getProperty(u"color")) {
        m_expressions.offer('r', element->getIdName());
    }
    return 1;
}

int ScreenGenerator::addGroup(DesignerObject *owner, int room, int depth)
{
    DesignerObject *group = addElement(owner, u"GroupElement"_s);
    place(group, 0, 0);
    const int count = std::min(room, m_random.between(3, 6));
    int made = 1;
    int members = 0;
    while (made < count || members < 2) {
        // A nested group must leave space for a second member.
        made += addVisual(group, members == 0 ? room - made - 1 : room - made, depth + 1);
        ++members;
    }
    m_builder.closeGroup(group);
    m_expressions.offer('e', group->getIdName());
    return made;
}

void ScreenGenerator::addOneOf(const QList<Share> &shares)
{
    const Share &share = draw(shares);
    const QString className = QString::fromLatin1(share.className);
    if (&shares == &hardware && ++m_channels[className] > channelCount(className)) {
        addVisual(m_screen, 1, deepestGroup);
        return;
    }
    (this->*share.fill)(addElement(m_screen, className));
}

//! The maximum number of elements of a class on one screen, so that each has a channel of the model.
qsizetype ScreenGenerator::channelCount(const QString &className) const
{
    if (const DeviceChannels *channels = DeviceChannels::of(className)) {
        return channels->available(*m_builder.project().configurationObject()).size();
    }
    return className == "EthernetPort"_L1 ? 1 : mostChannels;
}

void ScreenGenerator::set(DesignerObject *element, const char *propertyId, const QString &value)
{
    m_builder.set(element, propertyId, value);
}

void ScreenGenerator::place(DesignerObject *element, int width, int height)
{
    const int index = m_placed++ % (columns * rows);
    const QPointF position(margin.x() + index % columns * cell.width(),
                           margin.y() + index / columns * cell.height());
    set(element, "position", ValueConversion::toString(position));
    if (width > 0) {
        set(element, "size", ValueConversion::toString(QSizeF(width, height)));
    }
    if (m_random.chance(10)) {
        set(element, "opacity", QString::number(m_random.between(10, 100)));
    }
    if (m_random.chance(10)) {
        set(element, "z", QString::number(m_random.between(1, 20)));
    }
}

void ScreenGenerator::bindSome(int percent, DesignerObject *element, const char *propertyId,
                               RandomExpressions::Kind kind)
{
    if (m_random.chance(percent) && !m_expressions.names('e').isEmpty()) {
        m_builder.bind(element, propertyId, m_expressions.make(kind));
    }
}

QString ScreenGenerator::color()
{
    constexpr QLatin1StringView palette[] = {"#FFFFFFFF"_L1, "#FFE9EDF0"_L1, "#FF22303C"_L1, "#FF1F6FB2"_L1,
                                             "#FF2E7D4F"_L1, "#FFC62828"_L1, "#FFE0A11B"_L1, "#805F6F7C"_L1};
    return m_random.oneOf(palette);
}

void ScreenGenerator::fillText(DesignerObject *element)
{
    constexpr QLatin1StringView words[] = {
        "Level"_L1,  "Inlet valve"_L1,  "Boiler 2"_L1,         "Operating hours"_L1,
        "<none>"_L1, "50 %, rising"_L1, "\"Auto\" & remote"_L1};
    constexpr QLatin1StringView alignments[] = {"AlignRight"_L1, "AlignHCenter"_L1};
    place(element, 132, 36);
    set(element, "text", m_random.oneOf(words));
    set(element, "color", color());
    if (m_random.chance(30)) {
        const QFont font(u"DejaVu Sans"_s, m_random.between(8, 32));
        set(element, "font", ValueConversion::toString(font));
    }
    if (m_random.chance(40)) {
        set(element, "horizontalAlignment", m_random.oneOf(alignments));
    }
    bindSome(40, element, "textBinding", GeneralDataList::StringExpression);
    bindSome(12, element, "visibleBinding", GeneralDataList::BoolExpression);
    bindSome(5, element, "xBinding", GeneralDataList::MathExpression);
}

void ScreenGenerator::fillRectangle(DesignerObject *element)
{
    place(element, m_random.between(20, 132), m_random.between(10, 40));
    set(element, "color", color());
    set(element, "border", BorderInfo(m_random.below(4), Qt::darkGray).toString());
    set(element, "radius", QString::number(m_random.below(12)));
    bindSome(25, element, "colorBinding", GeneralDataList::GeneralExpression);
    bindSome(12, element, "visibleBinding", GeneralDataList::BoolExpression);
    bindSome(6, element, "yBinding", GeneralDataList::MathExpression);
    bindSome(6, element, "rotationBinding", GeneralDataList::MathExpression);
}

void ScreenGenerator::fillImage(DesignerObject *element)
{
    place(element, 40, 40);
    m_builder.link(element, "source", m_random.oneOf(m_images));
    bindSome(15, element, "visibleBinding", GeneralDataList::BoolExpression);
    bindSome(15, element, "rotationBinding", GeneralDataList::MathExpression);
}

QString ScreenGenerator::state()
{
    const QString name = m_expressions.oneOf('e');
    PropertyInfoList values;
    if (m_screen->getElement(name)->getProperty(u"color")) {
        values.append(PropertyInfo(u"color"_s, color()));
    }
    values.append(PropertyInfo(u"opacity"_s, QString::number(m_random.between(20, 100))));
    UpdateObjectInfo update;
    update.setName(name);
    update.setPropertyValues(values);
    return UpdateObjectList({update}).toString();
}

void ScreenGenerator::fillButton(DesignerObject *element)
{
    m_builder.link(element, "visualElement", m_expressions.oneOf('e'));
    set(element, "normalState", state());
    set(element, "pressedState", state());
    bindSome(90, element, "pressed", GeneralDataList::AssignExpression);
}

void ScreenGenerator::fillCheckButton(DesignerObject *element)
{
    m_builder.link(element, "visualElement", m_expressions.oneOf('e'));
    m_builder.link(element, "variable", m_expressions.oneOf('b'));
    set(element, "checkedState", state());
    set(element, "uncheckedState", state());
}

void ScreenGenerator::fillSpinner(DesignerObject *element)
{
    m_builder.link(element, "incVisualElement", m_expressions.oneOf('e'));
    m_builder.link(element, "decVisualElement", m_expressions.oneOf('e'));
    for (const char *propertyId :
         {"incNormalState", "incPressedState", "decNormalState", "decPressedState"}) {
        set(element, propertyId, state());
    }
    m_builder.link(element, "variable", m_expressions.oneOf('n'));
    set(element, "step", ValueConversion::toString(m_random.between(1, 50) / 10.0));
    set(element, "range", RangeInfo(m_random.between(-100, 0), m_random.between(1, 5000)).toString());
}

void ScreenGenerator::fillScreenLoader(DesignerObject *element)
{
    m_builder.link(element, "visualElement", m_expressions.oneOf('e'));
    m_builder.link(element, "screen", m_random.oneOf(m_screenNames));
}

void ScreenGenerator::fillLogic(DesignerObject *element)
{
    PairList rules;
    for (int i = m_random.between(1, 5); i > 0; --i) {
        const auto expression = [this](GeneralDataList::InfoType kind) {
            return m_builder.expression(kind, m_expressions.make(kind));
        };
        const QString condition = expression(GeneralDataList::BoolExpression);
        rules.append({condition, expression(GeneralDataList::AssignExpression)});
    }
    set(element, "logicExpression", rules.toString());
}

void ScreenGenerator::fillAction(DesignerObject *element)
{
    PropertyList changes;
    for (int i = m_random.between(1, 4); i > 0; --i) {
        const QString visible = m_random.chance(50) ? u"true"_s : u"false"_s;
        changes.append(PropertyChangeInfo(m_expressions.oneOf('e'), u"visible"_s, visible));
        changes.append(PropertyChangeInfo(m_expressions.oneOf('e'), u"opacity"_s, u"50"_s));
    }
    set(element, "propertyChanges", changes.toString());
    m_expressions.offer('a', element->getIdName());
}

void ScreenGenerator::fillTrigger(DesignerObject *element)
{
    m_builder.bind(element, "dataValues", m_expressions.oneOf('n') + u' ' + m_expressions.oneOf('b'));
    m_builder.bind(element, "condition", m_expressions.make(GeneralDataList::BoolExpression));
    QStringList actions{m_expressions.oneOf('a'), m_expressions.oneOf('a')};
    actions.removeDuplicates();
    set(element, "actionScheduler", actions.join(u", "_s));
}

void ScreenGenerator::fillDataLogging(DesignerObject *element)
{
    m_builder.link(element, "variable", m_expressions.oneOf('l'));
}

void ScreenGenerator::fillModbusCommands(DesignerObject *element)
{
    ListInfo commands;
    for (int i = m_random.between(1, 4); i > 0; --i) {
        const QString address = QString::number(m_random.below(0x1000) + 0x1000, 16).toUpper();
        commands.append(u"command%1|0103%2"_s.arg(QString::number(i), address));
    }
    set(element, "commands", commands.toString());
}

void ScreenGenerator::fillBACnetService(DesignerObject *element)
{
    const QStringList objects{m_expressions.oneOf('n'), m_expressions.oneOf('n')};
    set(element, "bacNetObjectList", ListInfo(objects).toString());
}

void ScreenGenerator::fillSpi(DesignerObject *element)
{
    m_builder.bind(element, "dataValues", m_expressions.oneOf('n') + u' ' + m_expressions.oneOf('n'));
}

void ScreenGenerator::fillChannel(DesignerObject *element)
{
    set(element, "channel", QString::number(m_channels.value(element->className())));
    if (element->className() == "AnalogInput"_L1) {
        set(element, "voltageRange", RangeInfo(0, m_random.between(1, 10)).toString());
    } else if (element->className() == "PwmOutput"_L1) {
        bindSome(70, element, "initValue", GeneralDataList::MathExpression);
    } else if (element->getProperty(u"initValue")) {
        bindSome(70, element, "initValue", GeneralDataList::BoolExpression);
    }
}

void ScreenGenerator::fillSerialPort(DesignerObject *element)
{
    fillChannel(element);
    fillMapping(element);
}

void ScreenGenerator::fillMapping(DesignerObject *element)
{
    m_builder.link(element, "mapping", m_expressions.oneOf('m'));
}

} // namespace Halvane::Corvex::Examples
