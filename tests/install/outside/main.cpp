// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/core/IDesignerObject.h"

#include <cstdio>

namespace {

using Halvane::Corvex::Common::EnumHelper;
using Halvane::Corvex::Designer::IDesignerObject;

class Pump : public IDesignerObject
{
    CORVEX_CLASS_NAMES(Pump, IDesignerObject)

public:
    bool initialize() override { return true; }
};

} // namespace

int main()
{
    const QByteArray names = Pump().classNames().join(u' ').toUtf8();
    std::printf("%s %d\n", names.constData(),
                EnumHelper::metaEnum(QStringLiteral("VariableType")).keyCount());
    return 0;
}
