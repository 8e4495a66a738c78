// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/xml/private/XmlTokens.h"

#include <array>
#include <condition_variable>
#include <mutex>

namespace Halvane::Corvex::Designer {

//! A ring of token blocks between the thread that fills them and the thread that reads them. The first waits
//! while all are full, the second while all are empty.
class XmlTokenQueue
{
public:
    //! The next block to fill; null if no more are wanted.
    XmlTokens *beginFilling();
    void endFilling(bool isLast);

    //! The next block to read; null after the last one.
    const XmlTokens *beginWalking();
    void endWalking();
    //! Stops both sides.
    void close();

private:
    static constexpr size_t size = 4;

    std::array<XmlTokens, size> m_tokens;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    size_t m_filled = 0; //!< the number of blocks filled so far
    size_t m_walked = 0; //!< the number of blocks read so far
    bool m_isLastFilled = false;
    bool m_isClosed = false;
};

} // namespace Halvane::Corvex::Designer
