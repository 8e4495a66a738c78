// SPDX-License-Identifier: MIT
#include "elements/visual/Text.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/FontProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/project/RuntimeTable.h"

#include "elements/BoundQml.h"
#include "elements/Rows.h"
#include "elements/visual/NumberFormat.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! "horizontalAlignment: Text.AlignLeft"
QmlBindings alignmentToQml(const DesignerProperty *property)
{
    return {property->id(), u"Text."_s + property->valueString()};
}

//! The text, or its expression with the format of numbers.
QmlBindings textToQml(const DesignerProperty *property)
{
    QmlBindings bindings = boundToQml(property);
    for (QmlBinding &binding : bindings) {
        if (binding.source && binding.source != property) {
            binding.code = NumberFormat::of(*property->parentObject()).apply(binding.code);
        }
    }
    return bindings;
}

} // namespace

bool Text::initializeProperties()
{
    static const QString numbers = Common::LocalizationHelper::coreString(u"Numbers"_s);
    static const PropertyTable table{
        row<StringProperty>("text", "Text", QString())
            .description("The text that is shown; it may have several lines.")
            .rank(2)
            .editor("PlainTextEditor")
            .qml(&textToQml)
            .allowInvalid(),
        bindingRow("textBinding", "Text (Expression)",
                   "An expression whose text is shown; while it is set, it replaces the fixed text.",
                   "VerticalStringExpressionEditor")
            .rank(3),
        row<FontProperty>("font", "Font", QFont(u"DejaVu Sans"_s, 12))
            .description("The family, the size and the style of the letters.")
            .rank(4),
        row<ColorProperty>("color", "Color", QColor(Qt::black))
            .description("The color of the letters.")
            .rank(5)
            .parameter("isTextColor", true)
            .qml(&boundToQml),
        bindingRow("colorBinding", "Color (Expression)",
                   "A color that follows values; while it is set, it replaces the fixed color.",
                   "PropertyEditor")
            .rank(6),
        row<SizeProperty>("size", "Size", QSizeF(120, 24))
            .description("The width and the height of the area in which the text is placed, in pixels.")
            .rank(7)
            .allowInvalid(),
        row<EnumProperty>("horizontalAlignment", "Horizontal Alignment",
                          EnumInfo(QMetaEnum::fromType<HorizontalAlignment>(), AlignLeft))
            .description("Where lines begin and end between the left and the right edge of the area.")
            .rank(8)
            .editor("EnumEditor")
            .qml(&alignmentToQml),
        row<EnumProperty>("verticalAlignment", "Vertical Alignment",
                          EnumInfo(QMetaEnum::fromType<VerticalAlignment>(), AlignVCenter))
            .description("Where the lines are placed between the top and the bottom edge of the area.")
            .rank(9)
            .editor("EnumEditor")
            .qml(&alignmentToQml),
        row<IntegerProperty>("decimals", "Decimals", NumberFormat::allDecimals)
            .flags(notAtRuntime)
            .rank(50)
            .parameter("group", numbers)
            .parameter("minimum", NumberFormat::allDecimals)
            .parameter("maximum", NumberFormat::mostDecimals)
            .description(
                "The digits after the decimal mark of a number that the expression gives. -1 leaves the "
                "number as it is."),
        row<EnumProperty>("thousands", "Thousands Separator",
                          EnumInfo(QMetaEnum::fromType<Thousands>(), None))
            .flags(notAtRuntime)
            .rank(51)
            .editor("EnumEditor")
            .parameter("group", numbers)
            .description("What separates groups of three digits. With a point, the decimal mark is a comma."),
        row<StringProperty>("prefix", "Prefix", QString())
            .flags(notAtRuntime)
            .rank(52)
            .editor("SingleLineEditor")
            .parameter("group", numbers)
            .description("The text before a number that the expression gives.")
            .example("p:"),
        row<StringProperty>("suffix", "Suffix", QString())
            .flags(notAtRuntime)
            .rank(53)
            .editor("SingleLineEditor")
            .parameter("group", numbers)
            .description("The text after a number that the expression gives, such as its unit.")
            .example("bar"),
    };
    return StandardVisual::initializeProperties() && addProperties(table);
}

ObjectView *Text::createGraphicsItem()
{
    return DesignerFactory::createObjectView(u"GraphicsText"_s, this);
}

RuntimePropertyList Text::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"text", "Text", EnumHelper::StringVariable, EnumHelper::ReadWrite},
        {"color", "Color", EnumHelper::ColorVariable, EnumHelper::ReadWrite},
        {"width", "Width", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"height", "Height", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
    };
    static const RuntimePropertyList list = extended(StandardVisual::runtimeProperties(), rows);
    return list;
}

} // namespace Halvane::Corvex::Elements
