// SPDX-License-Identifier: MIT
#include "elements/visual/NumberFormat.h"

#include "corvex/core/QmlText.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/EnumProperty.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

QChar separator(Text::Thousands thousands)
{
    switch (thousands) {
    case Text::None:
        break;
    case Text::Comma:
        return u',';
    case Text::Point:
        return u'.';
    case Text::Blank:
        return u'\u00a0'; // a line does not break there
    case Text::Apostrophe:
        return u'\'';
    }
    return {};
}

//! The decimal mark that cannot be taken for the separator.
QChar decimalMark(Text::Thousands thousands)
{
    return thousands == Text::Point ? u',' : u'.';
}

} // namespace

NumberFormat NumberFormat::of(const DesignerObject &text)
{
    const auto property = [&text](QStringView id) { return text.getProperty(id); };
    return {valueAs<IntegerProperty>(property(u"decimals")),
            Text::Thousands(valueAs<EnumProperty>(property(u"thousands")).value()),
            property(u"prefix")->valueString(), property(u"suffix")->valueString()};
}

QString NumberFormat::apply(const QString &code) const
{
    if (*this == NumberFormat()) {
        return code;
    }
    // Numbers that are rounded to zero have no sign.
    const QString digits =
        decimals < 0 ? u"String(v)"_s : u"v.toFixed(%1).replace(/^-(?=[0.]+$)/, \"\")"_s.arg(decimals);
    const QString parts = thousands == Text::None
                              ? digits
                              : u"%1.split(\".\").map(function(p, i) { return i > 0 ? p : "
                                "p.replace(/(\\d)(?=(\\d{3})+$)/g, %2); }).join(%3)"_s.arg(
                                    digits, QmlText::quoted(u"$1"_s + separator(thousands)),
                                    QmlText::quoted(decimalMark(thousands)));
    QStringList sum;
    if (!prefix.isEmpty()) {
        sum.append(QmlText::quoted(prefix));
    }
    sum.append(parts);
    if (!suffix.isEmpty()) {
        sum.append(QmlText::quoted(suffix));
    }
    // One call of arg for texts that contain "%1".
    return u"(function(v) { return typeof v !== \"number\" || !isFinite(v) ? v : %1; })(%2)"_s.arg(
        sum.join(u" + "_s), code);
}

} // namespace Halvane::Corvex::Elements
