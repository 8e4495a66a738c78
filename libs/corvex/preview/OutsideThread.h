// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace Halvane::Corvex::Preview {

//! A thread that keeps the rights that the rest of the program drops, because it was started before. It reads
//! and writes the files that the user has named: saved values, pictures, scripts.
class OutsideThread
{
public:
    //! Call it once, before the program drops its rights.
    static void start();
    //! Runs the task in that thread and waits for it; without the thread, runs it directly.
    static void run(const std::function<void()> &task);
};

} // namespace Halvane::Corvex::Preview
