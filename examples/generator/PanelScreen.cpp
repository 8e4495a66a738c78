// SPDX-License-Identifier: MIT
#include "PanelScreen.h"

#include "corvex/project/Screen.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/values/text/PairList.h"
#include "corvex/values/text/ValueConversion.h"

#include <QFont>

#include <map>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

const ElementHandle &ElementHandle::set(const char *propertyId, const QString &value) const
{
    m_builder->set(m_element, propertyId, value);
    return *this;
}

const ElementHandle &ElementHandle::link(const char *propertyId, const char *target) const
{
    m_builder->link(m_element, propertyId, utf8(target));
    return *this;
}

const ElementHandle &ElementHandle::bind(const char *propertyId, const char *expression) const
{
    m_builder->bind(m_element, propertyId, utf8(expression));
    return *this;
}

PanelScreen::PanelScreen(ProjectBuilder &builder, Screen *screen)
    : m_builder(builder)
    , m_screen(screen)
    , m_owners{screen}
{ }

QString PanelScreen::colorText(QRgb color)
{
    return ValueConversion::toString(QColor::fromRgba(color));
}

ElementHandle PanelScreen::add(const char *className, const char *name)
{
    return {m_builder, m_builder.addElement(m_owners.constLast(), utf8(className), utf8(name))};
}

ElementHandle PanelScreen::addPlaced(const char *className, const char *name, const QRect &place)
{
    return add(className, name)
        .set("position", ValueConversion::toString(QPointF(place.topLeft())))
        .set("size", ValueConversion::toString(QSizeF(place.size())));
}

ElementHandle PanelScreen::text(const char *name, const QRect &place, const char *text,
                                const TextStyle &style)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(style.pixels);
    font.setBold(style.isBold);
    return addPlaced("Text", name, place)
        .set("text", utf8(text))
        .set("font", ValueConversion::toString(font))
        .set("color", colorText(style.color))
        .set("horizontalAlignment", utf8(style.alignment));
}

ElementHandle PanelScreen::rectangle(const char *name, const QRect &place, const Face &face)
{
    return addPlaced("Rectangle", name, place)
        .set("color", colorText(face.color))
        .set("border", BorderInfo(face.borderWidth, QColor::fromRgba(face.borderColor)).toString())
        .set("radius", QString::number(face.radius));
}

ElementHandle PanelScreen::image(const char *name, const QRect &place, const char *file)
{
    return addPlaced("Image", name, place).link("source", file);
}

void PanelScreen::openGroup(const char *name, const QPoint &position)
{
    DesignerObject *group = m_builder.addElement(m_owners.constLast(), u"GroupElement"_s, utf8(name));
    m_builder.set(group, "position", ValueConversion::toString(QPointF(position)));
    m_owners.append(group);
}

void PanelScreen::closeGroup()
{
    m_builder.closeGroup(m_owners.takeLast());
}

void PanelScreen::pushButton(const char *name, const QRect &place, const char *caption, QRgb color,
                             const char *assignments)
{
    const QByteArray face = QByteArray(name).append("Face");
    rectangle(face, place, PanelStyle::plain(color, 4));
    text(QByteArray(name).append("Caption"), place, caption, PanelStyle::caption);
    const QString pressed = ValueConversion::toString(QColor::fromRgba(color).darker(140));
    function("Button", name)
        .link("visualElement", face)
        .set("normalState", state({{face, "color", colorText(color)}}))
        .set("pressedState", state({{face, "color", pressed}}))
        .bind("pressed", assignments);
}

ElementHandle PanelScreen::function(const char *className, const char *name)
{
    return add(className, name);
}

ElementHandle PanelScreen::channel(const char *className, const char *name, int number)
{
    const bool isSwitched =
        qstrcmp(className, "DigitalInputOutput") == 0 || qstrcmp(className, "AlarmOutput") == 0;
    m_builder.declare(utf8(name) + ".value"_L1,
                      isSwitched ? GeneralDataInfo::BooleanData : GeneralDataInfo::FloatData);
    return add(className, name).set("channel", QString::number(number));
}

void PanelScreen::logic(const char *name, std::initializer_list<Rule> rules)
{
    PairList pairs;
    for (const auto &[condition, assignments] : rules) {
        pairs.append({m_builder.expression(GeneralDataList::BoolExpression, utf8(condition)),
                      m_builder.expression(GeneralDataList::AssignExpression, utf8(assignments))});
    }
    function("LogicBuilder", name).set("logicExpression", pairs.toString());
}

void PanelScreen::action(const char *name, std::initializer_list<Change> changes)
{
    PropertyList list;
    for (const Change &change : changes) {
        list.append(PropertyChangeInfo(utf8(change.element), utf8(change.property), change.value));
    }
    function("Action", name).set("propertyChanges", list.toString());
}

QString PanelScreen::state(std::initializer_list<Change> changes)
{
    std::map<QString, PropertyInfoList> byElement;
    for (const Change &change : changes) {
        byElement[utf8(change.element)].append(PropertyInfo(utf8(change.property), change.value));
    }
    UpdateObjectList updates;
    for (const auto &[element, values] : byElement) {
        UpdateObjectInfo update;
        update.setName(element);
        update.setPropertyValues(values);
        updates.append(update);
    }
    return updates.toString();
}

void PanelScreen::filter(const char *name, std::initializer_list<const char *> elements)
{
    QStringList names;
    for (const char *element : elements) {
        names.append(utf8(element));
    }
    m_builder.addFilter(m_screen, utf8(name), names);
}

} // namespace Halvane::Corvex::Examples
