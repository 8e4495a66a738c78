// SPDX-License-Identifier: MIT
#include "corvex/editors/private/TextContrast.h"

#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype mostElements = 2000;

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

//! Between opaque colors.
double contrast(const QColor &first, const QColor &second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor blended(const QColor &top, double opacity, const QColor &beneath)
{
    const double share = top.alphaF() * opacity;
    const auto mix = [share](double over, double under) { return float(over * share + under * (1 - share)); };
    return QColor::fromRgbF(mix(top.redF(), beneath.redF()), mix(top.greenF(), beneath.greenF()),
                            mix(top.blueF(), beneath.blueF()));
}

double realOf(const DesignerObject &element, QStringView id, double otherwise)
{
    const SharedProperty property = element.getProperty(id);
    bool ok = false;
    const double value = property ? ValueConversion::toReal(property->valueString(), &ok) : otherwise;
    return ok ? value : otherwise;
}

QPointF positionOf(const DesignerObject &element)
{
    const SharedProperty position = element.getProperty(u"position");
    return position ? ValueConversion::toPoint(position->valueString()) : QPointF();
}

bool isVisible(const DesignerObject &element)
{
    const SharedProperty visible = element.getProperty(u"visible");
    return !visible || visible->valueString() == "true"_L1;
}

//! Paints a point of a screen up to the text.
class Painting
{
public:
    Painting(const DesignerObject &text, const QColor &screen)
        : m_text(text)
        , m_color(screen)
    { }

    //! Paints the elements of the list in the order of their layers. Returns whether the text was reached.
    bool paint(const SharedProperty &list, const QPointF &point)
    {
        // A screen may have many elements; only a few are at the point.
        std::vector<Layer> layers;
        for (const DesignerObject *element : list->listItems()) {
            const auto *visual = kindCast<VisualElement>(element);
            const bool isReached = element == &m_text || kindCast<GroupElement>(element)
                                   || (visual && visual->boundingRect().contains(point));
            if (isReached) {
                layers.push_back({realOf(*element, u"z", 0), element});
            }
        }
        std::ranges::stable_sort(layers, {}, &Layer::z);
        return std::ranges::any_of(layers, [&](const Layer &layer) {
            const auto *visual = kindCast<VisualElement>(layer.element);
            return layer.element == &m_text || (visual && paintElement(*visual, point));
        });
    }

    //! Nothing if it is not known.
    const std::optional<QColor> &color() const { return m_color; }

private:
    struct Layer
    {
        double z;
        const DesignerObject *element;
    };

    //! An element at the point, or a group.
    bool paintElement(const VisualElement &element, const QPointF &point)
    {
        if (const auto *group = kindCast<GroupElement>(&element)) {
            return paint(group->elements(), point - positionOf(element));
        }
        const SharedProperty fill = element.getProperty(u"color");
        const bool isText = fill && fill->editorParameters().value(u"isTextColor"_s).toBool();
        if (!isText && isVisible(element)) {
            const auto *color = propertyCast<ColorProperty>(fill);
            const SharedProperty binding = element.getProperty(u"colorBinding");
            if (!color || (binding && !binding->valueString().isEmpty())) {
                m_color.reset();
            } else {
                addLayer(color->value(), realOf(element, u"opacity", 100) / 100);
            }
        }
        return false;
    }

    void addLayer(const QColor &color, double opacity)
    {
        if (color.alpha() == 255 && opacity >= 1) {
            m_color = color;
        } else if (m_color) {
            m_color = blended(color, opacity, *m_color);
        }
    }

    const DesignerObject &m_text;
    std::optional<QColor> m_color;
};

} // namespace

bool TextContrast::dependsOn(const DesignerProperty &property)
{
    static const QStringList ids{u"position"_s, u"size"_s,    u"color"_s, u"colorBinding"_s,
                                 u"visible"_s,  u"opacity"_s, u"z"_s};
    return ids.contains(property.id());
}

std::optional<double> TextContrast::of(const DesignerObject &text, const QColor &color)
{
    const Screen *screen = text.screen();
    const auto *visual = kindCast<VisualElement>(&text);
    const auto *background = screen ? propertyCast<ColorProperty>(screen->getProperty(u"color")) : nullptr;
    if (!visual || !background || !color.isValid() || screen->elements()->listItemCount() > mostElements) {
        return {};
    }
    QPointF center = visual->boundingRect().center();
    for (const auto *owner = qobject_cast<const DesignerObject *>(text.parent());
         kindCast<GroupElement>(owner); owner = qobject_cast<const DesignerObject *>(owner->parent())) {
        center += positionOf(*owner);
    }
    Painting painting(text, blended(background->value(), 1, Qt::black));
    if (!painting.paint(screen->elements(), center) || !painting.color()) {
        return {};
    }
    return contrast(blended(color, realOf(text, u"opacity", 100) / 100, *painting.color()),
                    *painting.color());
}

} // namespace Halvane::Corvex::Designer
