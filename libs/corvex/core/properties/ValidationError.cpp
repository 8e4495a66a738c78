// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ValidationError.h"

#include "corvex/common/LocalizationHelper.h"

namespace Halvane::Corvex::Designer {

bool ValidationError::set(QString &error, const char *sentence)
{
    error = Common::LocalizationHelper::coreString(QString::fromLatin1(sentence));
    return false;
}

bool ValidationError::set(QString &error, const char *sentence, int number)
{
    return set(error, sentence, QString::number(number));
}

bool ValidationError::set(QString &error, const char *sentence, const QString &text)
{
    set(error, sentence);
    error = error.arg(text);
    return false;
}

} // namespace Halvane::Corvex::Designer
