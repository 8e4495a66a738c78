// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ElementPlacement.h"

#include "corvex/project/VisualElement.h"
#include "corvex/values/ValueConversion.h"

#include <QTransform>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct Origin
{
    QLatin1StringView name;
    double x; //!< as a part of the width
    double y;
};

constexpr std::array origins{
    Origin{"TopLeft"_L1, 0, 0},  Origin{"Top"_L1, 0.5, 0},       Origin{"TopRight"_L1, 1, 0},
    Origin{"Left"_L1, 0, 0.5},   Origin{"Right"_L1, 1, 0.5},     Origin{"BottomLeft"_L1, 0, 1},
    Origin{"Bottom"_L1, 0.5, 1}, Origin{"BottomRight"_L1, 1, 1},
};

} // namespace

ElementPlacement ElementPlacement::of(const DesignerObject *element)
{
    const auto text = [element](QStringView id) {
        const SharedProperty property = element->getProperty(id);
        return property ? property->valueString() : QString();
    };
    const QPointF position = ValueConversion::toPoint(text(u"position"));
    const auto *visual = kindCast<VisualElement>(element);
    const QRectF rect = visual ? visual->boundingRect() : QRectF(position, QSizeF(0, 0));
    const QPointF start = rect.topLeft() - position; // not zero in a group whose members stand away from it
    const QSizeF size(start.x() + rect.width(), start.y() + rect.height());
    return {position, size.expandedTo(QSizeF(0, 0)), text(u"rotation").toDouble(), text(u"transformOrigin"),
            visual ? text(u"scale").toDouble() / 100 : 1};
}

QPointF ElementPlacement::origin() const
{
    const auto known = std::find_if(origins.begin(), origins.end(),
                                    [this](const Origin &entry) { return transformOrigin == entry.name; });
    const bool isCenter = known == origins.end();
    return {size.width() * (isCenter ? 0.5 : known->x), size.height() * (isCenter ? 0.5 : known->y)};
}

QRectF ElementPlacement::actualBoundingRect() const
{
    const QRectF rect(position, size);
    if (std::fmod(rotation, 360) == 0) {
        return rect;
    }
    const QPointF center = position + origin();
    QTransform turn;
    turn.translate(center.x(), center.y());
    turn.rotate(rotation);
    turn.translate(-center.x(), -center.y());
    return turn.mapRect(rect);
}

QPointF ElementPlacement::turned(const QPointF &way) const
{
    QTransform turn;
    turn.rotate(rotation);
    turn.scale(scale, scale);
    return turn.map(way);
}

ElementPlacement ElementPlacement::holding(const QList<ElementPlacement> &members) const
{
    // A group reaches from its own zero point to the far edges of its members, turned or not.
    ElementPlacement group = *this;
    group.size = {0, 0};
    for (const ElementPlacement &member : members) {
        group.size = group.size.expandedTo(
            {member.position.x() + member.size.width(), member.position.y() + member.size.height()});
    }
    const QPointF way = origin() - group.origin();
    group.position += way - turned(way);
    return group;
}

ElementPlacement ElementPlacement::outOf(const ElementPlacement &group) const
{
    ElementPlacement outside = *this;
    outside.position += group.position;
    if (group.rotation != 0 || group.scale != 1) {
        outside.rotation = std::fmod(rotation + group.rotation, 360);
        outside.scale *= group.scale;
        outside.position =
            group.position + group.origin() + group.turned(position + origin() - group.origin()) - origin();
    }
    return outside;
}

} // namespace Halvane::Corvex::Designer
