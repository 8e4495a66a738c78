// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

namespace Halvane::Corvex::Preview {

//! What reacts to values that change, one after the other.
class Reaction
{
public:
    virtual ~Reaction() = default;
    virtual void react() = 0;
};

/*! Collects the elements whose values have changed and lets each react once for all changes at a time. What
   they do may wake others, or themselves. */
class LogicQueue : public QObject
{
    Q_OBJECT

public:
    explicit LogicQueue(QObject *parent = nullptr);

    //! Reacts when control comes back to the event loop, or with the next flush.
    void wake(QObject *element, Reaction *reaction);
    void flush();

signals:
    //! \a element has set itself off again and again, and is left in peace until something else wakes it.
    void isEndless(QObject *element);

private:
    struct Entry
    {
        QPointer<QObject> element;
        Reaction *reaction;
    };

    QList<Entry> m_entries;
    bool m_isFlushing = false;
    bool m_isPosted = false;
};

} // namespace Halvane::Corvex::Preview
