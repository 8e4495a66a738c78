// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/GraphicsRectangle.h"
#include "corvex/editors/expressions/ExpressionSample.h"

#include <memory>

namespace Halvane::Corvex::Elements {

//! A rectangle whose color may be an expression. It has the color that the expression gives with the values
//! of the variables in the project.
class GraphicsFilled : public Designer::GraphicsRectangle
{
    CORVEX_CLASS_NAMES(GraphicsFilled, Designer::GraphicsRectangle)

public:
    using GraphicsRectangle::GraphicsRectangle;

    void updateGraphicsItem(const Designer::SharedProperty &property) override;

private:
    void showSample();

    std::unique_ptr<Designer::ExpressionSample> m_sample; //!< null without an expression
};

} // namespace Halvane::Corvex::Elements
