// SPDX-License-Identifier: MIT
#include "elements/visual/StandardVisual.h"

#include "corvex/common/LocalizationHelper.h"

#include "elements/BoundQml.h"
#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool StandardVisual::initializeProperties()
{
    if (!VisualElement::initializeProperties()) {
        return false;
    }
    static const QString group = Common::LocalizationHelper::coreString(u"Expressions"_s);
    static const PropertyTable table{
        PropertyRow::redescribe(getProperty(u"position")).qml(&boundToQml),
        PropertyRow::redescribe(getProperty(u"rotation")).qml(&boundToQml),
        PropertyRow::redescribe(getProperty(u"visible")).qml(&boundToQml),
        bindingRow("xBinding", "Position X (Expression)",
                   "An expression for the distance from the left, in pixels; while it is set, it replaces "
                   "the fixed position.",
                   "VerticalMathExpressionEditor")
            .rank(60)
            .parameter("group", group),
        bindingRow("yBinding", "Position Y (Expression)",
                   "An expression for the distance from the top, in pixels; while it is set, it replaces the "
                   "fixed position.",
                   "VerticalMathExpressionEditor")
            .rank(61)
            .parameter("group", group),
        bindingRow("rotationBinding", "Rotation (Expression)",
                   "An expression for the clockwise angle, in degrees; while it is set, it replaces the "
                   "fixed angle.",
                   "VerticalMathExpressionEditor")
            .rank(62)
            .parameter("group", group),
        bindingRow("visibleBinding", "Visible (Expression)",
                   "A condition: the element is shown while it is true; it replaces the fixed setting.",
                   "VerticalBooleanExpressionEditor")
            .rank(63)
            .parameter("group", group),
    };
    return addProperties(table);
}

} // namespace Halvane::Corvex::Elements
