// SPDX-License-Identifier: MIT
// The data of the pump station on its CAN bus and for the building's network.
#include "corvex/variables/BACnetPropertyList.h"
#include "corvex/variables/CanParameterMap.h"

#include "PumpStation.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

using Info = GeneralDataInfo;

struct Group
{
    const char16_t *name;
    int pgn;
    int priority;
    QList<CanParameter> parameters;
};

//! The drive of the pumps uses the messages of an engine.
const Group groups[] = {
    {u"driveSpeed",
     61444,
     3,
     {{513, u"%"_s, 3, 1, 8, -125, -125, 125, 1}, {190, u"rpm"_s, 4, 1, 16, 0, 0, 8031.875, 0.125}}},
    {u"driveTemperature", 65262, 6, {{110, u"\u00b0C"_s, 1, 1, 8, -40, -40, 210, 1}}},
};

Info constant(const QString &text)
{
    return {Info::ConstantValue, Info::StringData, text};
}

Info variable(const QString &name, Info::DataType type)
{
    return {Info::VariableValue, type, name};
}

struct Point
{
    const char16_t *name;
    const char16_t *identifier;
    QList<BACnetPropertyList::Entry> properties;
};

const QString real = u"real"_s;
const QString enumerated = u"enumerated"_s;
const QString text = u"character-string"_s;

const Point points[] = {
    {u"wellLevelPoint",
     u"2,1",
     {{85, real, variable(u"wellLevel"_s, Info::NumberData)},
      {28, text, constant(u"Level of the wet well"_s)},
      {69, real, constant(u"0"_s)},
      {65, real, constant(u"100"_s)},
      {117, enumerated, constant(u"percent"_s)}}},
    {u"highLevelPoint",
     u"5,1",
     {{85, enumerated, variable(u"highLevel"_s, Info::BooleanData)},
      {46, text, constant(u"Normal"_s)},
      {4, text, constant(u"Too high"_s)}}},
};

} // namespace

void PumpStation::addNetworks()
{
    for (const Group &group : groups) {
        CanParameterMap map;
        map.setPgn(group.pgn);
        map.setPriority(group.priority);
        for (const CanParameter &parameter : group.parameters) {
            map.append(parameter);
        }
        DesignerObject *can = m_builder.addVariable(u"CANVariable"_s, QString::fromUtf16(group.name));
        m_builder.set(can, "parameterMap", map.toTerms().toString());
    }
    DesignerObject *panel = m_builder.addVariable(u"BACnetDevice"_s, u"panelDevice"_s);
    m_builder.set(panel, "objIdentifier", u"2401"_s);
    for (const Point &point : points) {
        BACnetPropertyList list;
        for (const BACnetPropertyList::Entry &entry : point.properties) {
            list.append(entry);
        }
        const QString name = QString::fromUtf16(point.name);
        DesignerObject *object = m_builder.addVariable(u"BACnetObject"_s, name);
        m_builder.set(object, "objectID", QString::fromUtf16(point.identifier));
        m_builder.set(object, "bacnetObjName", u"PumpStation."_s + name);
        m_builder.set(object, "properties", list.toTerms().toString());
    }
}

} // namespace Halvane::Corvex::Examples
