// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/xml/private/XmlTokens.h"

#include <array>
#include <condition_variable>
#include <mutex>

namespace Halvane::Corvex::Designer {

/*! A few stretches of tokens that go round between the thread that fills them and the one that walks them:
   the one waits when all are full, the other when all are empty. */
class XmlTokenQueue
{
public:
    //! The next one to fill; null when nobody wants any more.
    XmlTokens *beginFilling();
    void endFilling(bool isLast);

    //! The next one to walk; null behind the last one.
    const XmlTokens *beginWalking();
    void endWalking();
    //! Nothing is wanted any more.
    void close();

private:
    static constexpr size_t size = 4;

    std::array<XmlTokens, size> m_tokens;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    size_t m_filled = 0; //!< how many have been filled so far
    size_t m_walked = 0; //!< how many of them have been walked
    bool m_isLastFilled = false;
    bool m_isClosed = false;
};

} // namespace Halvane::Corvex::Designer
