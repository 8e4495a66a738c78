// SPDX-License-Identifier: MIT
#include "elements/visual/Rectangle.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/project/RuntimeTable.h"

#include "elements/BoundQml.h"
#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool Rectangle::initializeProperties()
{
    static const PropertyTable table{
        row<SizeProperty>("size", "Size", QSizeF(100, 60))
            .description("The width and the height of the rectangle, in pixels.")
            .rank(2)
            .allowInvalid(),
        row<ColorProperty>("color", "Color", QColor(Qt::white))
            .description("The color of the area.")
            .rank(3)
            .qml(&boundToQml),
        bindingRow("colorBinding", "Color (Expression)",
                   "A color that follows values; while it is set, it replaces the fixed color.",
                   "PropertyEditor")
            .rank(4),
        row<BorderProperty>("border", "Border", BorderInfo(1, Qt::black))
            .description(
                "The width of the border, in pixels, and its color. It is at most half of the smaller side.")
            .rank(5)
            .allowInvalid(),
        row<IntegerProperty>("radius", "Corner Radius", 0)
            .description("How far the corners are rounded, in pixels.")
            .rank(6)
            .parameter("minimum", 0)
            .parameter("suffix", QStringLiteral(" px"))
            .allowInvalid(),
    };
    return StandardVisual::initializeProperties() && addProperties(table);
}

ObjectView *Rectangle::createGraphicsItem()
{
    return DesignerFactory::createObjectView(u"GraphicsFilled"_s, this);
}

RuntimePropertyList Rectangle::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"color", "Color", EnumHelper::ColorVariable, EnumHelper::ReadWrite},
        {"radius", "Corner Radius", EnumHelper::IntegerVariable, EnumHelper::ReadWrite},
        {"width", "Width", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"height", "Height", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
    };
    static const RuntimePropertyList list = extended(StandardVisual::runtimeProperties(), rows);
    return list;
}

} // namespace Halvane::Corvex::Elements
