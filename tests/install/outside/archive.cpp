// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/common/zip/ZipHelper.h"

using namespace Halvane::Corvex::Common;

//! Looks into the archive of a build, with the companion library alone.
int main(int argc, char **argv)
{
    const bool hasNames = EnumHelper::getVariableAccessModeNames().value("ReadWrite") == "Read and Write";
    return argc == 2 && hasNames && ZipHelper::entryNames(argv[1]).size() == 1 ? 0 : 1;
}
