// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

/*! The short forms that people write for values, such as `120 x 40` for "height: 40; width: 120;".

    The functions convert texts from one form into the other. They return a null text if the given one is
    invalid, or if the value has no short form.
*/
class CORVEX_EXPORT ReadableText
{
public:
    //! `120 x 40`: width and height.
    static QString fromSize(const QString &stored);
    static QString toSize(const QString &text);
    //! `10, 20`
    static QString fromPoint(const QString &stored);
    static QString toPoint(const QString &text);
    //! `0 to 100`
    static QString fromRange(const QString &stored);
    static QString toRange(const QString &text);
    //! `2 #C62828`: width and color. Without a color it is black.
    static QString fromBorder(const QString &stored);
    static QString toBorder(const QString &text);
    //! `#C62828` for an opaque color.
    static QString fromColor(const QString &stored);
    static QString toColor(const QString &text);
    //! `bold italic 24px "DejaVu Sans"`: styles, the size in "px" or "pt", and the family.
    static QString fromFont(const QString &stored);
    //! The family may also be without quotes, at the end. \a family is used if the text has none.
    static QString toFont(const QString &text, const QString &family);
    static QString toFont(const QString &text) { return toFont(text, {}); }

    //! The text between double quotes, with escapes like those of JSON.
    static QString quoted(const QString &text);
    //! Whether the text cannot stand for itself on a line: it has quotes, a line break or another character
    //! that is not printable, or blanks or "=" at its ends.
    static bool needsQuotes(const QString &text);
    //! The contents of a text in quotes; a text without quotes stays as it is. \a error is set, for
    //! the user, if an escape is wrong.
    static QString unquoted(const QString &text, QString &error);
    //! The text that begins with a quote at \a place, which is moved behind the closing one. Null if there is
    //! no closing quote.
    static QString takeQuoted(QStringView text, qsizetype &place);
};

} // namespace Halvane::Corvex::Designer
