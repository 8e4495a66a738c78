// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include <QList>

#include <memory>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! The lists that hold an object: one for nearly every object, which takes no memory of its own.
class HoldingLists
{
public:
    bool isEmpty() const { return !m_first; }
    QList<DesignerProperty *> all() const
    {
        QList<DesignerProperty *> lists;
        if (m_first) {
            lists.append(m_first);
        }
        return m_others ? lists + *m_others : lists;
    }
    //! One that is here already is ignored.
    void add(DesignerProperty *list)
    {
        if (!m_first) {
            m_first = list;
        } else if (list != m_first && !(m_others && m_others->contains(list))) {
            if (!m_others) {
                m_others = std::make_unique<QList<DesignerProperty *>>();
            }
            m_others->append(list);
        }
    }
    void remove(DesignerProperty *list)
    {
        if (list == m_first) {
            m_first = m_others && !m_others->isEmpty() ? m_others->takeFirst() : nullptr;
        } else if (m_others) {
            m_others->removeOne(list);
        }
    }

private:
    DesignerProperty *m_first = nullptr;
    std::unique_ptr<QList<DesignerProperty *>> m_others;
};

} // namespace Halvane::Corvex::Designer
