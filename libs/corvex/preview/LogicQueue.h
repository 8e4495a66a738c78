// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

namespace Halvane::Corvex::Preview {

//! An element that reacts to changed values.
class Reaction
{
public:
    virtual ~Reaction() = default;
    virtual void react() = 0;
    //! What a user must know if the reaction does not end; may be empty.
    virtual QString cause() const { return {}; }
};

//! Collects the elements whose values have changed, and lets each react once to all changes. A reaction may
//! wake other elements, or its own.
class LogicQueue : public QObject
{
    Q_OBJECT

public:
    explicit LogicQueue(QObject *parent = nullptr);

    //! The reaction runs when control returns to the event loop, or with the next flush.
    void wake(QObject *element, Reaction *reaction);
    void flush();

signals:
    //! \a element keeps triggering itself. It stays inactive until something else wakes it. \a cause may be
    //! empty.
    void isEndless(QObject *element, const QString &cause);

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
