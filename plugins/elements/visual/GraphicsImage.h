// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/GraphicsRectangle.h"

namespace Halvane::Corvex::Elements {

//! An image of the project, stretched over the frame; a crossed frame if the image is missing.
class GraphicsImage : public Designer::GraphicsRectangle
{
    CORVEX_CLASS_NAMES(GraphicsImage, Designer::GraphicsRectangle)

public:
    using GraphicsRectangle::GraphicsRectangle;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};

} // namespace Halvane::Corvex::Elements
