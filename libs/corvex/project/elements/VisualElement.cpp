// SPDX-License-Identifier: MIT
#include "corvex/project/elements/VisualElement.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/project/PercentQml.h"
#include "corvex/project/RuntimeTable.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int smallestOpacity = 10;
constexpr int topLayer = 1000;

QString opacityDescription()
{
    return Common::LocalizationHelper::coreString(u"The minimum opacity is %1% - if you intend to make it "
                                                  u"invisible (0%) then please use the visible "
                                                  u"property instead.\n\nN.B. It is still possible to set "
                                                  u"the opacity less than %1% using action "
                                                  u"elements."_s)
        .arg(smallestOpacity);
}

} // namespace

bool VisualElement::initializeProperties()
{
    static const QString group = Common::LocalizationHelper::coreString(u"Appearance"_s);
    static const PropertyTable table{
        row<PointProperty>("position", "Position", QPointF())
            .description("The place of the top left corner on the screen, or in the group, in pixels from "
                         "the left and the top.")
            .rank(1)
            .flags(15)
            .tooltip("Position (0, 0) is top left of screen.")
            .allowInvalid(),
        row<RealProperty>("opacity", "Opacity", 100.0)
            .rank(50)
            .parameter("group", group)
            .editor("OpacityEditor")
            .parameter("minimum", smallestOpacity)
            .parameter("maximum", 100)
            .parameter("showSlider", true)
            .description(opacityDescription())
            .parameter("isPercentage", true)
            .qml(&percentToQml)
            .allowInvalid(),
        row<TransformOriginProperty>("transformOrigin", "Transform Origin", QQuickItem::Center)
            .description("The point of the element that stays in place when it is rotated or scaled.")
            .rank(51)
            .parameter("group", group)
            .tooltip("Controls the point about which simple transforms like scale apply."),
        row<RealProperty>("rotation", "Rotation (Clockwise)", 0.0)
            .description("The angle by which the element is turned clockwise, in degrees.")
            .example("45")
            .rank(52)
            .parameter("group", group)
            .parameter("minimum", 0)
            .parameter("maximum", 359.99)
            .parameter("singleStep", 1)
            .parameter("showSlider", true)
            .parameter("suffix", u"\u00B0"_s)
            .allowInvalid(),
        row<RealProperty>("scale", "Scale", 100.0)
            .description("The size at which the element is drawn, in percent of its own size; a negative "
                         "scale also mirrors it.")
            .example("150")
            .rank(53)
            .parameter("group", group)
            .editor("ScaleEditor")
            .parameter("minimum", -500)
            .parameter("maximum", 500)
            .parameter("showSlider", true)
            .parameter("isPercentage", true)
            .qml(&percentToQml)
            .allowInvalid(),
        row<IntegerProperty>("z", "Layer", 0)
            .description("The layer of the element; elements on a higher layer cover those on a lower one.")
            .rank(54)
            .parameter("group", group)
            .parameter("minimum", 0)
            .parameter("maximum", topLayer)
            .parameter("showSlider", true)
            .parameter("singleStep", 1)
            .allowInvalid(),
        row<BooleanProperty>("visible", "Visible", true)
            .description("Whether the element is shown and reacts to touches.")
            .rank(55)
            .parameter("group", group)
            .tooltip("When set to invisible the visual element will become unclickable."),
    };
    return Element::initializeProperties() && addProperties(table);
}

ObjectView *VisualElement::createGraphicsItem()
{
    return DesignerFactory::createObjectView(u"GraphicsRectangle"_s, this);
}

QRectF VisualElement::boundingRect() const
{
    const SharedProperty size = getProperty(u"size");
    return {ValueConversion::toPoint(getProperty(u"position")->valueString()),
            size ? ValueConversion::toSize(size->valueString()) : QSizeF(0, 0)};
}

RuntimePropertyList VisualElement::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"x", "Position X", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"y", "Position Y", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"scale", "Scale", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"rotation", "Rotation", EnumHelper::NumberVariable, EnumHelper::ReadWrite,
         "Rotation angle in degrees"},
        {"opacity", "Opacity", EnumHelper::NumberVariable, EnumHelper::ReadWrite, "Opacity (0 to 1)"},
        {"transformOrigin", "Transform Origin", EnumHelper::IntegerVariable, EnumHelper::ReadWrite,
         "Controls the point about which simple transforms like scale apply (0: Top left, 1: Top, 2: Top "
         "right, "
         "3: Left, 4: Center, 5: Right, 6: Bottom left, 7: Bottom, 8: Bottom right)"},
        {"z", "Layer", EnumHelper::IntegerVariable, EnumHelper::ReadWrite},
        {"visible", "Visible", EnumHelper::BooleanVariable, EnumHelper::ReadWrite,
         "The element is currently visible"},
    };
    static const RuntimePropertyList list = extended(Element::runtimeProperties(), rows);
    return list;
}

} // namespace Halvane::Corvex::Designer
