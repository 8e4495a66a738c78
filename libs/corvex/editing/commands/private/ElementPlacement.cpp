// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/ElementPlacement.h"

#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ValueConversion.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct Origin
{
    QLatin1StringView name;
    double x; //!< as a fraction of the width
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
    QSizeF size(0, 0);
    if (const auto *group = kindCast<GroupElement>(element)) {
        // As on the device: from its origin to the far edges of its members, ignoring rotations.
        for (const DesignerObject *member : group->elements()->listItems()) {
            const ElementPlacement place = of(member);
            size = size.expandedTo(
                {place.position.x() + place.size.width(), place.position.y() + place.size.height()});
        }
    } else if (visual) {
        size = visual->boundingRect().size();
    }
    return {position, size, text(u"rotation").toDouble(), text(u"transformOrigin"),
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

QTransform ElementPlacement::outward() const
{
    const QPointF fixed = origin();
    QTransform way;
    way.translate(position.x() + fixed.x(), position.y() + fixed.y());
    way.rotate(rotation);
    way.scale(scale, scale);
    way.translate(-fixed.x(), -fixed.y());
    return way;
}

QRectF ElementPlacement::shownBounds(const DesignerObject *element)
{
    const ElementPlacement place = of(element);
    QRectF own(QPointF(), place.size);
    if (const auto *group = kindCast<GroupElement>(element)) {
        own = {};
        for (const DesignerObject *member : group->elements()->listItems()) {
            if (kindCast<VisualElement>(member)) {
                own |= shownBounds(member);
            }
        }
    }
    return place.outward().mapRect(own);
}

QPointF ElementPlacement::turned(const QPointF &way) const
{
    QTransform turn;
    turn.rotate(rotation);
    turn.scale(scale, scale);
    return turn.map(way);
}

QPointF ElementPlacement::positionAfterSize(const QSizeF &oldSize) const
{
    ElementPlacement before = *this;
    before.size = oldSize;
    const QPointF way = before.origin() - origin();
    return position + way - turned(way);
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
