// SPDX-License-Identifier: MIT
#include "corvex/editors/private/UsedColors.h"

#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/GradientStopsProperty.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QHash>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype mostColors = 18;
constexpr int mostObjects = 1000;

class Count
{
public:
    void add(const QColor &color)
    {
        if (color.isValid() && ++m_uses[color.rgba()] == 1) {
            m_order.append(color.rgba());
        }
    }

    //! Adds the colors of the object and of everything in it.
    void addFrom(const DesignerObject &object)
    {
        if (m_objects >= mostObjects) {
            return;
        }
        ++m_objects;
        for (const SharedProperty &property : object.properties()) {
            if (const auto *color = propertyCast<ColorProperty>(property.data())) {
                add(color->value());
            } else if (const auto *border = propertyCast<BorderProperty>(property.data())) {
                add(border->value().color());
            } else if (const auto *list = propertyCast<ColorListProperty>(property.data())) {
                std::ranges::for_each(list->value(), [this](const QColor &one) { add(one); });
            } else if (const auto *gradient = propertyCast<GradientStopsProperty>(property.data())) {
                std::ranges::for_each(gradient->value(),
                                      [this](const QGradientStop &stop) { add(stop.second); });
            } else if (property->isList()) {
                for (const DesignerObject *item : property->listItems()) {
                    addFrom(*item);
                }
            }
        }
    }

    QList<QColor> mostFrequent() const
    {
        QList<QRgb> order = m_order;
        std::ranges::stable_sort(order, std::greater(), [this](QRgb color) { return m_uses.value(color); });
        QList<QColor> colors;
        for (const QRgb color : order.first(std::min(order.size(), mostColors))) {
            colors.append(QColor::fromRgba(color));
        }
        return colors;
    }

private:
    QHash<QRgb, int> m_uses;
    QList<QRgb> m_order; //!< of appearance
    int m_objects = 0;
};

} // namespace

QList<QColor> UsedColors::near(const DesignerObject &object)
{
    Count count;
    const Screen *screen = object.screen();
    if (screen) {
        count.addFrom(*screen);
    }
    if (const Project *project = object.project()) {
        for (const DesignerObject *other : project->screens()->listItems()) {
            if (other != screen) {
                count.addFrom(*other);
            }
        }
    }
    return count.mostFrequent();
}

QList<QColor> UsedColors::ofScreens(const Project &project)
{
    Count count;
    for (const DesignerObject *screen : project.screens()->listItems()) {
        if (const auto *color = propertyCast<ColorProperty>(screen->getProperty(u"color").data())) {
            count.add(color->value());
        }
    }
    return count.mostFrequent();
}

} // namespace Halvane::Corvex::Designer
