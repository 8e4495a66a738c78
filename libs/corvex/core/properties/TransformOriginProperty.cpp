// SPDX-License-Identifier: MIT
#include "corvex/core/properties/TransformOriginProperty.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Indexed by the numbers of the enumeration. Its meta-object also has the names, but its library is not
//! linked.
constexpr std::array origins{"TopLeft"_L1, "Top"_L1,        "TopRight"_L1, "Left"_L1,       "Center"_L1,
                             "Right"_L1,   "BottomLeft"_L1, "Bottom"_L1,   "BottomRight"_L1};
static_assert(QQuickItem::TopLeft == 0 && QQuickItem::Center == 4
              && QQuickItem::BottomRight == int(origins.size()) - 1);

} // namespace

QQuickItem::TransformOrigin TextForm<QQuickItem::TransformOrigin>::parse(const QString &text, bool *ok)
{
    return TransformOriginProperty::stringToEnum(text, ok);
}

QString TextForm<QQuickItem::TransformOrigin>::print(QQuickItem::TransformOrigin origin)
{
    return TransformOriginProperty::enumToString(origin);
}

QmlBindings QmlForm<QQuickItem::TransformOrigin>::bindings(const DesignerProperty &property,
                                                           QQuickItem::TransformOrigin origin)
{
    return {property.id(), u"Item."_s + TransformOriginProperty::enumToString(origin)};
}

QQuickItem::TransformOrigin TransformOriginProperty::stringToEnum(const QString &name, bool *ok)
{
    const auto found = std::find(origins.begin(), origins.end(), name);
    if (ok) {
        *ok = found != origins.end();
    }
    return found != origins.end() ? QQuickItem::TransformOrigin(found - origins.begin()) : QQuickItem::Center;
}

QStringList TransformOriginProperty::names()
{
    return {origins.begin(), origins.end()};
}

QString TransformOriginProperty::enumToString(QQuickItem::TransformOrigin origin)
{
    const auto index = size_t(origin);
    return index < origins.size() ? QString(origins[index]) : QString();
}

QString TransformOriginProperty::formText() const
{
    return FormText::oneOf(names());
}

} // namespace Halvane::Corvex::Designer
