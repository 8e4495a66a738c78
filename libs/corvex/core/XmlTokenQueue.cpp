// SPDX-License-Identifier: MIT
#include "corvex/core/XmlTokenQueue.h"

namespace Halvane::Corvex::Designer {

XmlTokens *XmlTokenQueue::beginFilling()
{
    const QMutexLocker lock(&m_mutex);
    while (!m_isClosed && m_filled - m_walked == size) {
        m_changed.wait(&m_mutex);
    }
    return m_isClosed ? nullptr : &m_tokens[m_filled % size];
}

void XmlTokenQueue::endFilling(bool isLast)
{
    const QMutexLocker lock(&m_mutex);
    ++m_filled;
    m_isLastFilled = isLast;
    m_changed.wakeOne();
}

const XmlTokens *XmlTokenQueue::beginWalking()
{
    const QMutexLocker lock(&m_mutex);
    while (m_filled == m_walked && !m_isLastFilled) {
        m_changed.wait(&m_mutex);
    }
    return m_filled == m_walked ? nullptr : &m_tokens[m_walked % size];
}

void XmlTokenQueue::endWalking()
{
    const QMutexLocker lock(&m_mutex);
    ++m_walked;
    m_changed.wakeOne();
}

void XmlTokenQueue::close()
{
    const QMutexLocker lock(&m_mutex);
    m_isClosed = true;
    m_changed.wakeOne();
}

} // namespace Halvane::Corvex::Designer
