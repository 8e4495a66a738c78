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
            .rank(1)
            .references(Form::Names)
            .parameter("scopeType", u"Project"_s)
            .parameter("filterType", u"BACnetObject"_s)
            .allowInvalid(),
        row<ListValueProperty>("bacNetDevices", "BACnet Devices", ListInfo())
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
        expressionRow("dataValues", "Data Values", "VerticalMathExpressionEditor")
            .rank(1)
            .validator(&termsValidator)
            .qml(&termsToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
