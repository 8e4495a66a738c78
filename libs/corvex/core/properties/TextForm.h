// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/text/ValueConversion.h"

namespace Halvane::Corvex::Designer {

//! How a value type is written and read. Records have a constructor from a text and toString(); the basic
//! types are specialised below.
template<class Value>
struct TextForm
{
    static Value parse(const QString &text, bool *ok) { return Value(text, ok); }
    static QString print(const Value &value) { return value.toString(); }
};

//! For types whose texts depend on the current value: the key of an enumeration, for example, is read as a
//! key of the enumeration of that value. The form has parse(text, current, ok); no text counts as empty.
template<class Value>
concept ReadsBesideCurrent = requires(const QString &text, const Value &current, bool *ok)
{
    TextForm<Value>::parse(text, current, ok);
};

//! For types whose values share common data with the current value. The form has parseLike(text, current,
//! ok).
template<class Value>
concept SharesTexts = requires(const QString &text, const Value &current, bool *ok)
{
    TextForm<Value>::parseLike(text, current, ok);
};

template<>
struct TextForm<QString>
{
    static QString parse(const QString &text, bool *ok)
    {
        *ok = true;
        return text;
    }
    static QString print(const QString &value) { return value; }
};

//! The basic types, by their function in ValueConversion.
#define CORVEX_TEXT_FORM(Value, function)                                                                    \
    template<>                                                                                               \
    struct TextForm<Value>                                                                                   \
    {                                                                                                        \
        static Value parse(const QString &text, bool *ok) { return ValueConversion::function(text, ok); }    \
        static QString print(const Value &value) { return ValueConversion::toString(value); }                \
    };
CORVEX_TEXT_FORM(bool, toBoolean)
CORVEX_TEXT_FORM(int, toInt)
CORVEX_TEXT_FORM(double, toReal)
CORVEX_TEXT_FORM(QColor, toColor)
CORVEX_TEXT_FORM(QList<QColor>, toColorList)
CORVEX_TEXT_FORM(QPointF, toPoint)
CORVEX_TEXT_FORM(QSizeF, toSize)
CORVEX_TEXT_FORM(QPolygonF, toPolygon)
CORVEX_TEXT_FORM(QList<QPolygonF>, toPolygonList)
CORVEX_TEXT_FORM(QGradientStops, toGradientStops)
#undef CORVEX_TEXT_FORM

//! Equal texts give one shared font: a project has thousands of texts in a few fonts.
template<>
struct CORVEX_EXPORT TextForm<QFont>
{
    static QFont parse(const QString &text, bool *ok);
    static QString print(const QFont &value) { return ValueConversion::toString(value); }
};

} // namespace Halvane::Corvex::Designer
