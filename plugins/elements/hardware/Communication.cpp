// SPDX-License-Identifier: MIT
#include "elements/hardware/Communication.h"

#include "corvex/core/properties/CollectionProperties.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool BACnetService::initializeProperties()
{
    static const PropertyTable table{
        row<ListValueProperty>("bacNetObjectList", "BACnet Objects", ListInfo())
            .description("The variables that describe the BACnet objects of the panel.")
            .example("point1 | point2")
            .rank(1)
            .references(Form::Names)
            .parameter("scopeType", u"Project"_s)
            .parameter("filterType", u"BACnetObject"_s)
            .allowInvalid(),
        row<ListValueProperty>("bacNetDevices", "BACnet Devices", ListInfo())
            .description("The variables that describe the BACnet devices with which the panel communicates.")
            .example("panel1")
            .rank(2)
            .references(Form::Names)
            .parameter("scopeType", u"Project"_s)
            .parameter("filterType", u"BACnetDevice"_s)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

bool ModbusCommands::initializeProperties()
{
    static const PropertyTable table{
        row<ListValueProperty>("commands", "Commands", ListInfo())
            .description("The commands to send: the name of the element that starts each, and its bytes in "
                         "hexadecimal digits.")
            .example("blink|010300000002")
            .rank(1)
            .references(Form::NamePairs)
            .parameter("scopeType", u"Project"_s)
            .parameter("filterType", u"MappingVariable"_s)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

bool SPICommunication::initializeProperties()
{
    static const PropertyTable table{
        expressionRow("dataValues", "Data Values", "The values that are sent, in this order.",
                      "PropertyEditor")
            .rank(1)
            .validator(&termsValidator)
            .qml(&termsToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
