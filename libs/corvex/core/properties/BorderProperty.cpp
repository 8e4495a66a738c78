// SPDX-License-Identifier: MIT
#include "corvex/core/properties/BorderProperty.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/ValidationError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int maximumWidth = 100;

//! The widest border that fits into \a owner.
int widthLimit(const DesignerObject *owner)
{
    const SharedProperty property = owner ? owner->getProperty(u"size") : SharedProperty();
    bool isSize = false;
    const QSizeF size = property ? ValueConversion::toSize(property->valueString(), &isSize) : QSizeF();
    return isSize ? int(std::clamp(std::min(size.width(), size.height()) / 2, 0.0, double(maximumWidth)))
                  : maximumWidth;
}

} // namespace

bool BorderProperty::validateValue(QString &error) const
{
    const int width = value().width();
    if (width < 0 || width > maximumWidth) {
        return ValidationError::set(error, "The border width must be between 0 and 100.");
    }
    if (const int limit = widthLimit(parentObject()); width > limit) {
        return ValidationError::set(error, "The border width must be less than or equal to %1 px.", limit);
    }
    return value().color().isValid() || ValidationError::set(error, ValidationError::invalidColor);
}

QString BorderProperty::formText() const
{
    return Common::LocalizationHelper::coreString(u"a border such as 2 #C62828"_s);
}

} // namespace Halvane::Corvex::Designer
