// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/text/ValueConversion.h"

namespace Halvane::Corvex::Designer {

/*! How a value type is written and read. A record has a constructor from its text and toString(); the basic
   kinds are specialised below. */
template<class Value>
struct TextForm
{
    static Value parse(const QString &text, bool *ok) { return Value(text, ok); }
    static QString print(const Value &value) { return value.toString(); }
};

/*! Of a kind whose texts mean nothing by themselves: the key of an enumeration is read as one of the
    enumeration that the value at hand belongs to. Its form is parse(text, current, ok), and it takes no text
    as empty. */
template<class Value>
concept ReadsBesideCurrent = requires(const QString &text, const Value &current, bool *ok)
{
    TextForm<Value>::parse(text, current, ok);
};

//! Of a kind whose values share what they have in common with the value at hand: parseLike(text, current,
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

//! The basic kinds, by their function of ValueConversion.
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

//! Equal texts give one font, whose description they share: a project has thousands of texts in a few fonts.
template<>
struct CORVEX_EXPORT TextForm<QFont>
{
    static QFont parse(const QString &text, bool *ok);
    static QString print(const QFont &value) { return ValueConversion::toString(value); }
};

} // namespace Halvane::Corvex::Designer
