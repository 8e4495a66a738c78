// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/common/zip/ZipHelper.h"

using namespace Halvane::Corvex::Common;

//! Lists the archive of a build, using only the companion library.
int main(int argc, char **argv)
{
    const bool hasNames = EnumHelper::getVariableAccessModeNames().value("ReadWrite") == "Read and Write";
    return argc == 2 && hasNames && ZipHelper::entryNames(argv[1]).size() == 1 ? 0 : 1;
}
