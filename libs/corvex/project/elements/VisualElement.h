// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/Element.h"

#include <QRectF>

namespace Halvane::Corvex::Designer {

//! An element that is drawn. Opacity and scale are percentages in the model and fractions at run time.
class CORVEX_EXPORT VisualElement : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(VisualElement, Element)

public:
    RuntimePropertyList runtimeProperties() const override;
    //! The area of the element before rotation and scaling, in the coordinates of its screen or group; empty
    //! for an element without a size.
    virtual QRectF boundingRect() const;

protected:
    using Element::Element;
    //! A rectangle, unless a class overrides it.
    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
