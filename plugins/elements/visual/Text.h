// SPDX-License-Identifier: MIT
#pragma once

#include "elements/visual/StandardVisual.h"

namespace Halvane::Corvex::Elements {

//! A text, plain or the value of a string expression.
class Text : public StandardVisual
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Text, Designer::VisualElement)

public:
    //! The QML names for the alignments of a text.
    enum HorizontalAlignment {
        AlignLeft = Qt::AlignLeft,
        AlignHCenter = Qt::AlignHCenter,
        AlignRight = Qt::AlignRight
    };
    Q_ENUM(HorizontalAlignment)
    enum VerticalAlignment {
        AlignTop = Qt::AlignTop,
        AlignVCenter = Qt::AlignVCenter,
        AlignBottom = Qt::AlignBottom
    };
    Q_ENUM(VerticalAlignment)
    //! What separates groups of three digits. With a point, the decimal mark is a comma.
    enum Thousands { None, Comma, Point, Blank, Apostrophe };
    Q_ENUM(Thousands)

    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using StandardVisual::StandardVisual;
    Designer::ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
