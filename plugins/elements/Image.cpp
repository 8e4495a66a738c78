// SPDX-License-Identifier: MIT
#include "elements/Image.h"

#include "corvex/core/properties/BooleanProperty.h"
#include "corvex/core/properties/SizeProperty.h"
#include "corvex/project/RuntimeTable.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool Image::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("source", "Source", "ImageResource")
            .rank(2)
            .editor("ImageSourceEditor")
            .validator(&linkTargetValidator)
            .qml(&linkNameToQml),
        row<SizeProperty>("size", "Size", QSizeF(100, 100)).rank(3).allowInvalid(),
        row<BooleanProperty>("keepRatio", "Keep Proportions", true)
            .rank(4)
            .flags(notAtRuntime)
            .editor("KeepRatioEditor"),
    };
    return StandardVisual::initializeProperties() && addProperties(table);
}

RuntimePropertyList Image::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"source", "Source", EnumHelper::StringVariable, EnumHelper::ReadWrite},
        {"width", "Width", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
        {"height", "Height", EnumHelper::NumberVariable, EnumHelper::ReadWrite},
    };
    static const RuntimePropertyList list = extended(StandardVisual::runtimeProperties(), rows);
    return list;
}

} // namespace Halvane::Corvex::Elements
