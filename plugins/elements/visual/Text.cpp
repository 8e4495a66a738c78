// SPDX-License-Identifier: MIT
#include "elements/visual/Text.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/FontProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/project/RuntimeTable.h"

#include "elements/BoundQml.h"
#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! "horizontalAlignment: Text.AlignLeft"
QmlBindings alignmentToQml(const DesignerProperty *property)
{
    return {property->id(), u"Text."_s + property->valueString()};
}

} // namespace

bool Text::initializeProperties()
{
    static const PropertyTable table{
        row<StringProperty>("text", "Text", QString())
            .rank(2)
            .editor("PlainTextEditor")
            .qml(&boundToQml)
            .allowInvalid(),
        bindingRow("textBinding", "Text (Expression)", "VerticalStringExpressionEditor").rank(3),
        row<FontProperty>("font", "Font", QFont(u"DejaVu Sans"_s, 12)).rank(4),
        row<ColorProperty>("color", "Color", QColor(Qt::black)).rank(5).qml(&boundToQml),
        bindingRow("colorBinding", "Color (Expression)", "PropertyEditor").rank(6),
        row<SizeProperty>("size", "Size", QSizeF(120, 24)).rank(7).allowInvalid(),
        row<EnumProperty>("horizontalAlignment", "Horizontal Alignment",
                          EnumInfo(QMetaEnum::fromType<HorizontalAlignment>(), AlignLeft))
            .rank(8)
            .editor("EnumEditor")
            .qml(&alignmentToQml),
        row<EnumProperty>("verticalAlignment", "Vertical Alignment",
                          EnumInfo(QMetaEnum::fromType<VerticalAlignment>(), AlignVCenter))
            .rank(9)
            .editor("EnumEditor")
            .qml(&alignmentToQml),
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
