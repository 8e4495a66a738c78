// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/VisualElement.h"

namespace Halvane::Corvex::Designer {

/*! Several elements that are moved, shown and turned as one.

    `indexes` lists the names of the members in the order by which the runtime numbers them. The group does
   not keep it in step by itself: the commands that change the members change it too, so that undo restores
   it.
*/
class CORVEX_EXPORT GroupElement : public VisualElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(GroupElement, VisualElement)

public:
    SharedProperty elements() const { return getProperty(u"elements"); }
    SharedProperty indexes() const { return getProperty(u"indexes"); }

    //! The names of all elements in the group, those of groups in it included.
    QStringList childrenNames() const;
    //! Looks through groups in the group too.
    Element *getChild(const QString &name) const;
    bool hasChild(const QString &name) const { return getChild(name); }
    //! The screen on which the outermost group stands; null out of a screen.
    Screen *parentScreen() const;

    //! The statements of the members, those of groups in it included.
    QString onCompletedQml(int indent) const override;
    RuntimePropertyList runtimeProperties() const override;
    //! The rectangle around the members, moved to the group's position.
    QRectF boundingRect() const override;

protected:
    using VisualElement::VisualElement;
    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
