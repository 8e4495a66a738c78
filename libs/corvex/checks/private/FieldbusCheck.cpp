// SPDX-License-Identifier: MIT
#include "corvex/checks/private/FieldbusCheck.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Project.h"
#include "corvex/variables/BACnetObject.h"
#include "corvex/variables/CANVariable.h"
#include "corvex/variables/CanParameterMap.h"

#include <QHash>

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int messageBits = 64;

//! Who uses which bit of a message.
struct BitUser
{
    const DesignerObject *variable = nullptr;
    int spn = 0;
};
using Message = std::array<BitUser, messageBits>;

} // namespace

bool FieldbusCheck::concerns(const DesignerProperty &property)
{
    return property.id() == "variables"_L1 && property.parentObject()->isKindOfClass(Project::kindName());
}

void FieldbusCheck::look(const DesignerProperty &variables)
{
    lookForSharedIdentifiers(variables);
    lookForSharedBits(variables);
}

void FieldbusCheck::lookForSharedIdentifiers(const DesignerProperty &variables)
{
    QHash<QPair<int, int>, const DesignerObject *> owners;
    for (const DesignerObject *object : variables.getItemsOfType(u"BACnetObject"_s)) {
        const SharedProperty property = object->getProperty(u"objectID");
        const auto identifier = BACnetObject::readIdentifier(property->valueString());
        if (!identifier) {
            continue;
        }
        const DesignerObject *&owner = owners[{identifier->type, identifier->instance}];
        if (owner) {
            report(*property, ProblemCode::BACnetTaken, {property->valueString(), owner->getIdName()});
        } else {
            owner = object;
        }
    }
}

void FieldbusCheck::lookForSharedBits(const DesignerProperty &variables)
{
    QHash<quint32, Message> messages; // by identifier without priority, which parts no messages
    for (const DesignerObject *object : variables.getItemsOfType(u"CANVariable"_s)) {
        const SharedProperty &property = static_cast<const CANVariable *>(object)->parameterMap();
        CanParameterMap map;
        QString error;
        if (!map.read(valueAs<GeneralDataListProperty>(property), error)) {
            continue;
        }
        Message &message = messages[quint32(map.pgn()) << 8 | quint32(map.sourceAddress())];
        for (const CanParameter &parameter : map.parameters()) {
            const int start = (parameter.byte - 1) * 8 + parameter.bit - 1;
            const auto first = message.begin() + start;
            const auto last = first + parameter.length;
            const auto other = std::find_if(first, last, [](const BitUser &user) { return user.variable; });
            if (other != last) {
                report(*property, ProblemCode::CanOverlap,
                       {QString::number(parameter.spn), QString::number(other->spn),
                        other->variable->getIdName()});
            }
            std::fill(first, last, BitUser{object, parameter.spn});
        }
    }
}

} // namespace Halvane::Corvex::Designer
