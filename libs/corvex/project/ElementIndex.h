// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QString>

#include <functional>
#include <set>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Element;

/*! Finds the elements of a screen, members of groups and filters among them, by name and by channel.

    Elements enter and leave it as they enter and leave the screen, so that no name check walks the screen.
*/
class ElementIndex
{
public:
    void insert(Element *element);
    void remove(Element *element);
    void rename(Element *element, const QString &oldName);
    void clear();

    QList<Element *> named(const QString &name) const { return m_byName.values(name); }
    qsizetype count(const QString &name) const { return m_byName.count(name); }
    //! The first of base1, base2, ... that no element bears and that is not taken otherwise.
    QString freeName(const QString &base, const std::function<bool(const QString &name)> &isTaken = {});

    //! The hardware elements of that class with that channel; worked out anew after channels have changed.
    QList<const DesignerObject *> withChannel(const QString &className, const QString &channel) const;
    void forgetChannels() { m_channelsKnown = false; }

private:
    void nameFreed(const QString &name);

    QMultiHash<QString, Element *> m_byName;
    //! What is known of the numbers behind a base.
    struct Numbers
    {
        int next = 1;       //!< below it, a number is an element's or one of the gaps
        std::set<int> gaps; //!< numbers that were freed, or were taken elsewhere when they were asked for
    };
    QHash<QString, Numbers> m_numbers; //!< by base
    mutable QMultiHash<QPair<QString, QString>, const DesignerObject *> m_byChannel;
    mutable bool m_channelsKnown = false;
};

} // namespace Halvane::Corvex::Designer
