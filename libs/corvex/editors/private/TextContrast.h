// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class QColor;

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;

//! The contrast of a text with what its screen shows beneath it.
class TextContrast
{
public:
    //! 1 to 21, at the center of the text. Nothing if the color beneath is not known before run time, or if
    //! the screen has very many elements.
    static std::optional<double> of(const DesignerObject &text, const QColor &color);
    //! Whether a change of the property can change the contrast of a text.
    static bool dependsOn(const DesignerProperty &property);
    //! The lowest contrast at which texts are easy to read.
    static constexpr double enough = 4.5;
};

} // namespace Halvane::Corvex::Designer
