// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/FieldbusCheck.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Project.h"
#include "corvex/variables/BACnetObject.h"
#include "corvex/variables/CANVariable.h"
#include "corvex/variables/CanParameterMap.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int messageBits = 64;

//! The user of a bit in a message.
struct BitUser
{
    const DesignerObject *variable = nullptr;
    int spn = 0;
};
using Message = std::array<BitUser, messageBits>;

const SharedProperty &mapProperty(const DesignerObject &variable)
{
    return static_cast<const CANVariable &>(variable).parameterMap();
}

//! Returns false for an invalid map.
bool readMap(const DesignerObject &variable, CanParameterMap &map)
{
    QString error;
    return map.read(valueAs<GeneralDataListProperty>(mapProperty(variable)), error);
}

SharedProperty identifierOf(const DesignerObject &object)
{
    return object.getProperty(u"objectID");
}

} // namespace

bool IdentifierCheck::concerns(const DesignerObject &object) const
{
    return object.isKindOfClass(u"BACnetObject"_s);
}

QList<SharedCheck::Claim> IdentifierCheck::claims(const DesignerObject &object) const
{
    const auto identifier = BACnetObject::readIdentifier(identifierOf(object)->valueString());
    return identifier ? QList<Claim>{{u"%1,%2"_s.arg(identifier->type).arg(identifier->instance)}}
                      : QList<Claim>();
}

void IdentifierCheck::compare(const Group &group)
{
    for (const DesignerObject *object : group.subjects.sliced(1)) {
        const SharedProperty property = identifierOf(*object);
        report(*property, ProblemCode::BACnetTaken,
               {property->valueString(), group.subjects.constFirst()->getIdName()});
    }
}

bool MessageBitsCheck::concerns(const DesignerObject &object) const
{
    return object.isKindOfClass(u"CANVariable"_s);
}

QList<SharedCheck::Claim> MessageBitsCheck::claims(const DesignerObject &object) const
{
    CanParameterMap map;
    if (!readMap(object, map)) {
        return {};
    }
    // The identifier without the priority, which does not distinguish messages.
    return {{QString::number(quint32(map.pgn()) << 8 | quint32(map.sourceAddress()))}};
}

void MessageBitsCheck::compare(const Group &group)
{
    Message message;
    for (const DesignerObject *variable : group.subjects) {
        CanParameterMap map;
        readMap(*variable, map);
        for (const CanParameter &parameter : map.parameters()) {
            const int start = (parameter.byte - 1) * 8 + parameter.bit - 1;
            const auto first = message.begin() + start;
            const auto last = first + parameter.length;
            const auto other = std::find_if(first, last, [](const BitUser &user) { return user.variable; });
            if (other != last) {
                report(*mapProperty(*variable), ProblemCode::CanOverlap,
                       {QString::number(parameter.spn), QString::number(other->spn),
                        other->variable->getIdName()});
            }
            std::fill(first, last, BitUser{variable, parameter.spn});
        }
    }
}

} // namespace Halvane::Corvex::Designer
