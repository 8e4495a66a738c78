// SPDX-License-Identifier: MIT
#include "corvex/common/Processors.h"

#include <algorithm>
#include <future>
#include <thread>
#include <vector>

namespace Halvane::Corvex::Common {

std::size_t Processors::count()
{
    static const std::size_t processors = std::max(std::thread::hardware_concurrency(), 1U); // reads a file
    return processors;
}

void Processors::run(std::size_t most, const std::function<void()> &work)
{
    std::vector<std::future<void>> others(std::max<std::size_t>(std::min(count(), most), 1) - 1);
    for (std::future<void> &other : others) {
        // If no other thread can be started, the call runs later in this one.
        other = std::async(std::launch::async | std::launch::deferred, work);
    }
    work();
    for (std::future<void> &other : others) {
        other.get();
    }
}

} // namespace Halvane::Corvex::Common
