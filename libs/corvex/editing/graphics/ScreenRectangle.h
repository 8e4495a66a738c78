// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/GraphicsRectangle.h"

namespace Halvane::Corvex::Designer {

//! The rectangle of a screen, below everything else. The items of the elements are its siblings in the scene,
//! not its children: otherwise each frame would visit all of them to paint a few. They are still added and
//! removed together with it.
class CORVEX_EXPORT ScreenRectangle : public GraphicsRectangle
{
public:
    explicit ScreenRectangle(DesignerObject *screen);
    ~ScreenRectangle() override;

protected:
    void place(QGraphicsItem *child) override;
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    QList<GraphicsItem *> elementItems() const;
};

} // namespace Halvane::Corvex::Designer
