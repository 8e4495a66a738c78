// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <cstddef>
#include <functional>

namespace Halvane::Corvex::Common {

//! Work that all processors share.
class CORVEX_COMMON_EXPORT Processors
{
public:
    //! At least 1.
    static std::size_t count();

    /*! Calls \a work in several threads at once, this one among them, and returns when all calls have
        returned. There are as many as there are processors, and at most \a most. The calls share out among
        themselves what there is to do; one of them alone must be able to do it all. */
    static void run(std::size_t most, const std::function<void()> &work);
};

} // namespace Halvane::Corvex::Common
