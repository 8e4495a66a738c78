// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! In which order a list keeps its items.
enum class OrderRule {
    InsertionOrder = 0,
    PlainOrder = 1,    //!< by name, code unit by code unit
    NaturalOrder = 2,  //!< by name as people sort: "pump2" before "pump10"
    FileNameOrder = 3, //!< by name as file managers sort, the extension last
    KindOrder = 4, //!< variables, hardware, function and filter elements, each by NaturalOrder, then visual
                   //!< elements and then all others, these two in their own order
};

/*! An ordered list of child objects.

    An item that comes into an ordered list is put in its place by a binary search; a list that is being read
   is sorted once, when it is complete.
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
    //! The blocks of the children.
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
