// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace Halvane::Corvex::Preview {

/*! A thread that keeps the rights which the rest of the program gives up, since it began before. It reads and
   writes the files that the user has named: saved values, pictures, scripts. */
class OutsideThread
{
public:
    //! Once for the program, before it gives up anything.
    static void start();
    //! Does the task there and waits for it; here and now when there is no such thread.
    static void run(const std::function<void()> &task);
};

} // namespace Halvane::Corvex::Preview
