// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/VisualElement.h"

namespace Halvane::Corvex::Designer {

/*! Several elements that are moved, shown and rotated together.

    `indexes` lists the names of the members in the order of their runtime numbers. The group does not update
    it: the commands that change the members do, so that undo restores it.
*/
class CORVEX_EXPORT GroupElement : public VisualElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(GroupElement, VisualElement)

public:
    SharedProperty elements() const { return getProperty(u"elements"); }
    SharedProperty indexes() const { return getProperty(u"indexes"); }

    //! The names of all elements in the group, including those in nested groups.
    QStringList childrenNames() const;
    //! Also searches nested groups.
    Element *getChild(const QString &name) const;
    bool hasChild(const QString &name) const { return getChild(name); }
    //! The screen of the outermost group; null outside of a screen.
    Screen *parentScreen() const;

    //! The statements of the members, including those in nested groups.
    QString onCompletedQml(int indent) const override;
    RuntimePropertyList runtimeProperties() const override;
    //! The bounding rectangle of the members, at the group's position.
    QRectF boundingRect() const override;

protected:
    using VisualElement::VisualElement;
    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
