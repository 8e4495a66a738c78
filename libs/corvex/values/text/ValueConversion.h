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

//! The text forms of the basic value types in project files, undo commands and editors. No function depends
//! on the locale. The readers take the text and an optional \a ok. For an invalid text they return the null
//! value of their type (false, 0, an invalid colour, nothing) and set \a ok to false.
class CORVEX_EXPORT ValueConversion
{
public:
    //! "true" or "false" in any case. Any other text, except an empty one, is reported to the debug channel.
    static bool toBoolean(QStringView text, bool *ok = nullptr);
    static QString toString(bool value);

    static int toInt(QStringView text, bool *ok = nullptr);
    static QString toString(int value);

    //! A finite number. Refuses "nan", "inf" and numbers beyond the range of a double, so that they never
    //! reach the model.
    static double toReal(QStringView text, bool *ok = nullptr);
    //! The real form: at most three decimals, no trailing zeros, never an exponent; 1e308 has 309 digits. A
    //! negative number that rounds to zero gives "-0", which is also written as "-0" when it is read back.
    //! Not-a-number and the infinities give "nan", "inf" and "-inf".
    static QString toString(double value);
    //! The real form with another number of decimals (0 to 100), for generated code. The special values have
    //! their JavaScript names: NaN, Infinity and -Infinity.
    static QString toQmlString(double value, int decimals);

    // Rounds each coordinate to a number of decimals. Halves round up, so that -2.5 becomes -2. The value is
    // unchanged if the number of decimals is negative, or if the value is too large to have that many.
    static double restrictDecimals(double value, int decimals);
    static QPointF restrictDecimals(const QPointF &point, int decimals);
    static QSizeF restrictDecimals(const QSizeF &size, int decimals);
    static QRectF restrictDecimals(const QRectF &rect, int decimals);
    static QPolygonF restrictDecimals(const QPolygonF &polygon, int decimals);
    static QList<QPolygonF> restrictDecimals(const QList<QPolygonF> &polygons, int decimals);

    //! A text of more than seven characters is read as #AARRGGBB, whatever its first character. Shorter
    //! texts, and "transparent", are a colour name of the toolkit, #RGB or #RRGGBB, and opaque.
    static QColor toColor(QStringView text, bool *ok = nullptr);
    //! #AARRGGBB in upper case.
    static QString toString(const QColor &color);

    //! "[#FFFF0000,#FF00FF00]". Each part is read unchanged. An invalid colour stays in the list; \a ok only
    //! refers to the last part.
    static QList<QColor> toColorList(QStringView text, bool *ok = nullptr);
    //! An empty list gives "]".
    static QString toString(const QList<QColor> &colors);

    //! Reads the group form (see GroupText). If a key is repeated, the last value counts.
    static QMap<QString, QString> toGroupProperties(QStringView text, bool *ok = nullptr);
    static QString toString(const QMap<QString, QString> &group);

    //! Requires every key that toString() writes except pointSize and pixelSize; if both are absent, the font
    //! has the application's size. A letter spacing other than zero is in pixels. Spacings are rounded to
    //! 64ths, the precision of a font.
    static QFont toFont(QStringView text, bool *ok = nullptr);
    static QString toString(const QFont &font);

    //! "x: 10; y: 20.5;"
    static QPointF toPoint(QStringView text, bool *ok = nullptr);
    static QString toString(const QPointF &point);
    //! "height: 20; width: 40;"
    static QSizeF toSize(QStringView text, bool *ok = nullptr);
    static QString toString(const QSizeF &size);
    //! Points joined with " | ". An empty polygon gives the empty text, which cannot be read on its own.
    static QPolygonF toPolygon(QStringView text, bool *ok = nullptr);
    static QString toString(const QPolygonF &polygon);
    //! "[x: 0; y: 0; | x: 10; y: 0;], []": each polygon in brackets.
    static QList<QPolygonF> toPolygonList(QStringView text, bool *ok = nullptr);
    static QString toString(const QList<QPolygonF> &polygons);

    //! "0, #FFFF0000 | 0.5, #FF00FF00". Positions are truncated to two decimals when they are written.
    static QGradientStops toGradientStops(QStringView text, bool *ok = nullptr);
    static QString toString(const QGradientStops &stops);

    //! The text between double quotes. Nothing inside is escaped.
    static QString addQuotes(QStringView text);

    // Overloads for QString, which also take string literals.
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

    //! Prevents a pointer, such as a plain literal, from converting to bool.
    template<class T>
    static QString toString(const T *) = delete;

    // Append the forms to a text under construction.
    static void appendReal(QString &text, double value);
    static void appendColor(QString &text, const QColor &color);
    static void appendPoint(QString &text, const QPointF &point);
};

} // namespace Halvane::Corvex::Designer
