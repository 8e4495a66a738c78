// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QList>
#include <QMap>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer {

//! The text forms of the basic kinds of values, as they stand in project files, undo commands and editors. No
//! function depends on a locale. The readers take the text and an optional \a ok; of a text that they refuse
//! they give the null value of their type (false, 0, an invalid colour, nothing) and set \a ok to false.
class CORVEX_EXPORT ValueConversion
{
public:
    //! "true" or "false" in any case. A text that is neither and not empty is told to the debug channel.
    static bool toBoolean(QStringView text, bool *ok = nullptr);
    static QString toString(bool value);

    static int toInt(QStringView text, bool *ok = nullptr);
    static QString toString(int value);

    //! A finite number: "nan", "inf" and numbers beyond the range of a double are refused, so that none of
    //! them gets into a model.
    static double toReal(QStringView text, bool *ok = nullptr);
    //! The real form: three decimals at most, trailing zeros cut, never an exponent; 1e308 has 309 digits.
    //! What rounds to zero from below is "-0", and reads back as what prints "-0". Not a number and the
    //! infinities give "nan", "inf" and "-inf".
    static QString toString(double value);
    //! The real form with another number of decimals (0 to 100) for generated code, where the values that are
    //! no numbers have the names of JavaScript: NaN, Infinity and -Infinity.
    static QString toQmlString(double value, int decimals);

    // Each coordinate rounded to a number of decimals; halves go up, so that -2.5 becomes -2. A negative
    // number of decimals leaves the value as it is, and so do values too large to have that many.
    static double restrictDecimals(double value, int decimals);
    static QPointF restrictDecimals(const QPointF &point, int decimals);
    static QSizeF restrictDecimals(const QSizeF &size, int decimals);
    static QRectF restrictDecimals(const QRectF &rect, int decimals);
    static QPolygonF restrictDecimals(const QPolygonF &polygon, int decimals);
    static QList<QPolygonF> restrictDecimals(const QList<QPolygonF> &polygons, int decimals);

    //! More than seven characters are #AARRGGBB, whatever the first character is; seven and fewer, and
    //! "transparent", are a name that the toolkit knows, #RGB or #RRGGBB, and opaque.
    static QColor toColor(QStringView text, bool *ok = nullptr);
    //! #AARRGGBB in upper case.
    static QString toString(const QColor &color);

    //! "[#FFFF0000,#FF00FF00]". Each part is read as it stands; an invalid colour stays in the list, and \a
    //! ok tells of the last part only.
    static QList<QColor> toColorList(QStringView text, bool *ok = nullptr);
    //! An empty list is "]".
    static QString toString(const QList<QColor> &colors);

    //! The group form (see GroupText). Of a key that is repeated the last value counts.
    static QMap<QString, QString> toGroupProperties(QStringView text, bool *ok = nullptr);
    static QString toString(const QMap<QString, QString> &group);

    //! Asks for every key that toString() writes; pointSize and pixelSize may be absent, and the font then
    //! has the application's size. A letter spacing other than zero is read as pixels. Spacings are rounded
    //! to 64ths, which is what a font can hold.
    static QFont toFont(QStringView text, bool *ok = nullptr);
    static QString toString(const QFont &font);

    //! "x: 10; y: 20.5;"
    static QPointF toPoint(QStringView text, bool *ok = nullptr);
    static QString toString(const QPointF &point);
    //! "height: 20; width: 40;"
    static QSizeF toSize(QStringView text, bool *ok = nullptr);
    static QString toString(const QSizeF &size);
    //! Points joined with " | "; an empty polygon is the empty text, which is refused when it is read alone.
    static QPolygonF toPolygon(QStringView text, bool *ok = nullptr);
    static QString toString(const QPolygonF &polygon);
    //! "[x: 0; y: 0; | x: 10; y: 0;], []": each polygon in brackets.
    static QList<QPolygonF> toPolygonList(QStringView text, bool *ok = nullptr);
    static QString toString(const QList<QPolygonF> &polygons);

    //! "0, #FFFF0000 | 0.5, #FF00FF00". Positions are cut to two decimals when they are written.
    static QGradientStops toGradientStops(QStringView text, bool *ok = nullptr);
    static QString toString(const QGradientStops &stops);

    //! The text between two double quotes; nothing inside is escaped.
    static QString addQuotes(QStringView text);

    // The same of a QString, and so of a plain literal.
    static bool toBoolean(const QString &text, bool *ok = nullptr)
    {
        return toBoolean(QStringView(text), ok);
    }
    static int toInt(const QString &text, bool *ok = nullptr) { return toInt(QStringView(text), ok); }
    static double toReal(const QString &text, bool *ok = nullptr) { return toReal(QStringView(text), ok); }
    static QColor toColor(const QString &text, bool *ok = nullptr) { return toColor(QStringView(text), ok); }
    static QList<QColor> toColorList(const QString &text, bool *ok = nullptr)
    {
        return toColorList(QStringView(text), ok);
    }
    static QMap<QString, QString> toGroupProperties(const QString &text, bool *ok = nullptr)
    {
        return toGroupProperties(QStringView(text), ok);
    }
    static QFont toFont(const QString &text, bool *ok = nullptr) { return toFont(QStringView(text), ok); }
    static QPointF toPoint(const QString &text, bool *ok = nullptr) { return toPoint(QStringView(text), ok); }
    static QSizeF toSize(const QString &text, bool *ok = nullptr) { return toSize(QStringView(text), ok); }
    static QPolygonF toPolygon(const QString &text, bool *ok = nullptr)
    {
        return toPolygon(QStringView(text), ok);
    }
    static QList<QPolygonF> toPolygonList(const QString &text, bool *ok = nullptr)
    {
        return toPolygonList(QStringView(text), ok);
    }
    static QGradientStops toGradientStops(const QString &text, bool *ok = nullptr)
    {
        return toGradientStops(QStringView(text), ok);
    }
    static QString addQuotes(const QString &text) { return addQuotes(QStringView(text)); }

    //! A pointer, and with it a plain literal, would be taken for a boolean.
    template<class T>
    static QString toString(const T *) = delete;

    // The forms appended to a text that is being put together.
    static void appendReal(QString &text, double value);
    static void appendColor(QString &text, const QColor &color);
    static void appendPoint(QString &text, const QPointF &point);
};

} // namespace Halvane::Corvex::Designer
