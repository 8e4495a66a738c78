// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/XmlTokenQueue.h"

namespace Halvane::Corvex::Designer {

XmlTokens *XmlTokenQueue::beginFilling()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isClosed || m_filled - m_walked < size; });
    return m_isClosed ? nullptr : &m_tokens[m_filled % size];
}

void XmlTokenQueue::endFilling(bool isLast)
{
    const std::lock_guard lock(m_mutex);
    ++m_filled;
    m_isLastFilled = isLast;
    m_changed.notify_one();
}

const XmlTokens *XmlTokenQueue::beginWalking()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_filled > m_walked || m_isLastFilled; });
    return m_filled == m_walked ? nullptr : &m_tokens[m_walked % size];
}

void XmlTokenQueue::endWalking()
{
    const std::lock_guard lock(m_mutex);
    ++m_walked;
    m_changed.notify_one();
}

void XmlTokenQueue::close()
{
    const std::lock_guard lock(m_mutex);
    m_isClosed = true;
    m_changed.notify_one();
}

} // namespace Halvane::Corvex::Designer
