// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionKinds.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionRules.h"

namespace Halvane::Corvex::Designer {

QStringList ExpressionKinds::of(const GeneralDataInfo &term)
{
    struct Row
    {
        ExpressionRules::Kind kind;
        const char16_t *name;
    };
    using enum ExpressionRules::Kind;
    static constexpr Row rows[] = {
        {Bool, u"conditions (such as visibleBinding)"},
        {Math, u"number expressions (such as xBinding)"},
        {String, u"text expressions (such as textBinding)"},
    };
    QStringList kinds;
    for (const auto &[kind, name] : rows) {
        if (ExpressionRules::allows(kind, term)) {
            kinds.append(Common::LocalizationHelper::coreString(QString::fromUtf16(name)));
        }
    }
    return kinds;
}

} // namespace Halvane::Corvex::Designer
