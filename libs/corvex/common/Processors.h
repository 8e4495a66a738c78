// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <cstddef>
#include <functional>

namespace Halvane::Corvex::Common {

//! Divides work among all processors.
class CORVEX_COMMON_EXPORT Processors
{
public:
    //! At least 1.
    static std::size_t count();

    //! Calls \a work in several threads at once, including the calling one, and returns when all calls have
    //! returned. There is one call per processor, but at most \a most. The calls must divide the work among
    //! themselves, and one call alone must be able to do all of it.
    static void run(std::size_t most, const std::function<void()> &work);
};

} // namespace Halvane::Corvex::Common
