// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! The order of the items in a list.
enum class OrderRule {
    InsertionOrder = 0,
    PlainOrder = 1,    //!< by name, by code units
    NaturalOrder = 2,  //!< by name in natural order: "pump2" before "pump10"
    FileNameOrder = 3, //!< by name like file managers, comparing the extension last
    KindOrder = 4, //!< variables, hardware, function and filter elements, each by NaturalOrder, then visual
                   //!< elements and then all others, these two in their own order
};

/*! An ordered list of child objects.

    An item inserted into a sorted list is placed by a binary search. A list that is being read is sorted
    once, when it is complete.
*/
class CORVEX_EXPORT ObjectListProperty : public DesignerProperty
{
    CORVEX_CLASS_NAMES(ObjectListProperty, DesignerProperty)

public:
    ObjectListProperty(DesignerObject *parent, const QString &id, const QString &name,
                       OrderRule rule = OrderRule::InsertionOrder);

    OrderRule orderRule() const { return m_rule; }

    bool convertToValue(const QString &text) override;
    QString convertToValueString() const override;
    bool valueIsEqual(const QString &text) const override;
    bool validateValue(QString &error) const override;
    //! The QML blocks of the children.
    QString convertToQml(int indent) const override;
    void updateListItems() override;

protected:
    ObjectListProperty(DesignerObject *parent, const ObjectListProperty &prototype);

    qsizetype placeInOrder(qsizetype index, const DesignerObject &item) const override;

private:
    qsizetype placeAround(const DesignerObject &item, qsizetype end, qsizetype begin) const;
    void placeNewest(qsizetype index);
    void sortAll();

    OrderRule m_rule;
};

} // namespace Halvane::Corvex::Designer
