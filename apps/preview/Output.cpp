// SPDX-License-Identifier: MIT
#include "Output.h"

#include <cstdio>

namespace Halvane::Corvex::Preview {

void complain(const QString &message)
{
    std::fprintf(stderr, "corvex: %s\n", qUtf8Printable(message));
}

void print(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
}

} // namespace Halvane::Corvex::Preview
