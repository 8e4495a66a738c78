// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/DbcFile.h"

#include "FuzzSupport.h"

using namespace Halvane::Corvex::Designer;

//! What is offered of a CAN database is a valid parameter group.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const DbcFile file(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    for (const DbcMessage &message : file.messages()) {
        const CanParameterMap map = message.toMap(0);
        CanParameterMap again;
        QString error;
        Fuzz::require(map.parameters().isEmpty() || again.read(map.toTerms(), error), "a valid group", error);
    }
    return 0;
}
