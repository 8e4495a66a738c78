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
    const auto *visual = kindCast<VisualElement>(element);
    return {ValueConversion::toPoint(text(u"position")), visual ? visual->boundingRect().size() : QSizeF(),
            text(u"rotation").toDouble(), text(u"transformOrigin")};
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

ElementPlacement ElementPlacement::outOf(const ElementPlacement &group) const
{
    ElementPlacement outside = *this;
    outside.position += group.position;
    if (std::fmod(group.rotation, 360) != 0) {
        QTransform turn;
        turn.rotate(group.rotation);
        const QPointF center = group.origin() + turn.map(position + origin() - group.origin());
        outside.position = group.position + center - origin();
        outside.rotation = std::fmod(rotation + group.rotation, 360);
    }
    return outside;
}

} // namespace Halvane::Corvex::Designer
