// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/NameIndex.h"

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
class CORVEX_EXPORT ElementIndex
{
public:
    void insert(Element *element);
    void remove(Element *element);
    void rename(Element *element, const QString &oldName);
    void clear();
    //! How many elements bear each name, counted from here on for a whole project in \a counts, too; null to
    //! count no longer there.
    using NameCounts = QHash<QString, int>;
    void countIn(NameCounts *counts);

    QList<DesignerObject *> named(const QString &name) const { return m_byName.find(name); }
    qsizetype count(const QString &name) const { return m_byName.count(name); }
    //! The first of base1, base2, ... that no element bears and that is not taken otherwise.
    QString freeName(const QString &base, const std::function<bool(const QString &name)> &isTaken = {});

    //! The hardware elements of that class with that channel.
    QList<DesignerObject *> withChannel(const QString &className, const QString &channel) const;
    //! Another element of the class of \a element with that channel; null if no other uses it.
    const DesignerObject *otherWithChannel(const DesignerObject *element, const QString &channel) const;
    void changeChannel(DesignerObject *element, const QString &oldChannel);

private:
    using Channels = QMultiHash<QPair<QString, QString>, DesignerObject *>; //!< by class and channel

    const Channels &channels() const;
    void nameFreed(const QString &name);
    void forgetChannelOf(Element *element);
    void count(const QString &name, int by);

    NameIndex m_byName;
    NameCounts *m_counts = nullptr; //!< of the project
    //! What is known of the numbers behind a base.
    struct Numbers
    {
        int next = 1;       //!< below it, a number is an element's or one of the gaps
        std::set<int> gaps; //!< numbers that were freed, or were taken elsewhere when they were asked for
    };
    QHash<QString, Numbers> m_numbers; //!< by base
    // Found at the first question, since most screens are never asked, and kept from then on.
    mutable Channels m_byChannel;
    mutable bool m_channelsKnown = false;
};

} // namespace Halvane::Corvex::Designer
