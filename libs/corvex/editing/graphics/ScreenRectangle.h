// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/GraphicsRectangle.h"

namespace Halvane::Corvex::Designer {

/*! The rectangle of a screen, below all else. The items of the elements do not lie in it but beside it, in
   the same scene: a frame would otherwise visit all of them to paint a few. They still come and go with it.
 */
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
