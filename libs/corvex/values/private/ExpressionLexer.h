// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Halvane::Corvex::Designer {

//! A word, a sign or a constant in the text of a readable expression.
struct ExpressionToken
{
    enum Type : quint8 {
        End,
        Name,       //!< with the text of the name, without quotes
        Text,       //!< with the text of the constant, without quotes and escapes
        Number,     //!< with its digits, sign and exponent
        Float,      //!< a number that ends in "f", without it
        Decimal,    //!< a number that ends in "n", without it
        Color,      //!< "#AARRGGBB"
        Hex,        //!< the digits after "0x"
        Sign,       //!< an operator, "=" or ";"
        Annotation, //!< the name of a type after "::"
        Wrong       //!< with a message for the user
    };
    Type type = End;
    QString text;
    qsizetype position = 0;
    qsizetype length = 0;
    bool isQuoted = false; //!< a name in quotes, which is no word of the language
};

//! Splits a readable expression into tokens.
class ExpressionLexer
{
public:
    explicit ExpressionLexer(QStringView text)
        : m_text(text)
    { }

    //! \a operandDue: a sign before a digit belongs to the number.
    ExpressionToken next(bool operandDue);
    //! Whether the rest of the text begins with \a sign, after blanks or at once.
    bool isBefore(QStringView sign, bool afterBlanks) const;

    //! The text in quotes, with escapes. Everything that is not printable is escaped.
    static QString quoted(const QString &text, QChar quote);
    //! Whether the character can be on a line of text without an escape.
    static bool isPrintable(char32_t c);
    //! Whether the name can be written without quotes; it may still be a word of the language.
    static bool isPlainName(QStringView path);

private:
    QChar at(qsizetype offset = 0) const
    {
        return m_place + offset < m_text.size() ? m_text[m_place + offset] : QChar();
    }
    ExpressionToken token(ExpressionToken::Type type, qsizetype begin, const QString &text) const;
    ExpressionToken wrong(qsizetype begin, const QString &english);
    ExpressionToken takeQuoted();
    std::optional<char32_t> takeCodePoint();
    ExpressionToken takeNumber();
    ExpressionToken takeColor();
    ExpressionToken takeName();
    ExpressionToken takeSign();
    qsizetype skipDigits();

    QStringView m_text;
    qsizetype m_place = 0;
};

} // namespace Halvane::Corvex::Designer
