// SPDX-License-Identifier: MIT
#include "corvex/preview/LogicQueue.h"

namespace Halvane::Corvex::Preview {

namespace {

//! The limit for reactions of one element in a single pass. Rules that converge need at most as many rounds
//! as there are rules.
constexpr int mostRounds = 200;

} // namespace

LogicQueue::LogicQueue(QObject *parent)
    : QObject(parent)
{ }

void LogicQueue::wake(QObject *element, Reaction *reaction)
{
    const bool isWaiting =
        std::ranges::any_of(m_entries, [element](const Entry &entry) { return entry.element == element; });
    if (isWaiting) {
        return;
    }
    m_entries.append({element, reaction});
    if (!m_isPosted && !m_isFlushing) {
        m_isPosted = true;
        QMetaObject::invokeMethod(this, &LogicQueue::flush, Qt::QueuedConnection);
    }
}

void LogicQueue::flush()
{
    m_isPosted = false;
    if (m_isFlushing) {
        return;
    }
    m_isFlushing = true;
    QHash<const QObject *, int> rounds;
    while (!m_entries.isEmpty()) {
        const Entry entry = m_entries.takeFirst();
        if (!entry.element) {
            continue;
        }
        const int round = ++rounds[entry.element];
        if (round < mostRounds) {
            entry.reaction->react();
        } else if (round == mostRounds) {
            emit isEndless(entry.element, entry.reaction->cause());
        }
    }
    m_isFlushing = false;
}

} // namespace Halvane::Corvex::Preview
