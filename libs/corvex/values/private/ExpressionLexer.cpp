// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionLexer.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Token = ExpressionToken;

constexpr struct
{
    char16_t letter;
    char16_t character;
} escapes[] = {{u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u'"', u'"'}, {u'\'', u'\''}, {u'\\', u'\\'}};

//! Signs of other languages, and what to write instead.
constexpr struct
{
    QStringView sign;
    QLatin1StringView replacement;
} foreignSigns[] = {{u"<>", "!="_L1},
                    {u"=>", ">="_L1},
                    {u"=<", "<="_L1},
                    {u"**", "pow(x, y)"_L1},
                    {u"^", "pow(x, y)\" or \"xor"_L1},
                    {u"!", "not"_L1},
                    {u"\u2260", "!="_L1},
                    {u"\u2265", ">="_L1},
                    {u"\u2264", "<="_L1},
                    {u"\u00d7", "*"_L1},
                    {u"\u00f7", "/"_L1},
                    {u"\u2212", "-"_L1}};

bool beginsName(QChar c)
{
    return c.isLetter() || c == u'_';
}

bool continuesName(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isHexDigit(QChar c)
{
    return isDigit(c) || (c.toUpper() >= u'A' && c.toUpper() <= u'F');
}

//! The longest sign first.
const QStringList &signs()
{
    static const QStringList sorted = [] {
        QStringList all = ExpressionVocabulary::mathOperators() + ExpressionVocabulary::booleanOperators();
        all += {u"="_s, u";"_s};
        all.removeDuplicates();
        all.removeOne(u"^"_s); // it has a word, as most people read it as a power
        std::ranges::stable_sort(all, std::greater(), &QString::size);
        return all;
    }();
    return sorted;
}

} // namespace

Token ExpressionLexer::token(Token::Type type, qsizetype begin, const QString &text) const
{
    return {type, text, begin, m_place - begin};
}

//! Takes at least one character, so that every loop over tokens ends.
Token ExpressionLexer::wrong(qsizetype begin, const QString &english)
{
    m_place = std::clamp(m_place, std::min(begin + 1, m_text.size()), m_text.size());
    return {Token::Wrong, LocalizationHelper::coreString(english), begin,
            std::max<qsizetype>(m_place - begin, 1)};
}

bool ExpressionLexer::isBefore(QStringView sign, bool afterBlanks) const
{
    QStringView rest = m_text.sliced(m_place);
    while (afterBlanks && !rest.isEmpty() && rest.front().isSpace()) {
        rest = rest.sliced(1);
    }
    return rest.startsWith(sign);
}

Token ExpressionLexer::next(bool operandDue)
{
    while (at().isSpace()) {
        ++m_place;
    }
    const QChar c = at();
    const bool isSigned = operandDue && c == u'-' && (isDigit(at(1)) || (at(1) == u'.' && isDigit(at(2))));
    if (m_place >= m_text.size()) {
        return token(Token::End, m_place, {});
    }
    if (c == u'"' || c == u'\'') {
        return takeQuoted();
    }
    if (isSigned || isDigit(c) || (c == u'.' && isDigit(at(1)))) {
        return takeNumber();
    }
    if (c == u'#') {
        return takeColor();
    }
    return beginsName(c) ? takeName() : takeSign();
}

Token ExpressionLexer::takeQuoted()
{
    const qsizetype begin = m_place;
    const QChar quote = at();
    QString text;
    for (++m_place; m_place < m_text.size(); ++m_place) {
        const QChar c = at();
        if (c == quote && !QStringView(text).isValidUtf16()) {
            return wrong(begin, u"The text contains half of a character. Write \\u{1F600} for an emoji."_s);
        }
        if (c == quote) {
            ++m_place;
            Token taken = token(quote == u'"' ? Token::Text : Token::Name, begin, text);
            taken.isQuoted = true;
            return taken;
        }
        if (c != u'\\') {
            text.append(c);
            continue;
        }
        ++m_place;
        const char16_t letter = at().unicode();
        const auto *escape =
            std::ranges::find_if(escapes, [letter](const auto &row) { return row.letter == letter; });
        if (escape != std::end(escapes)) {
            text.append(QChar(escape->character));
            continue;
        }
        const std::optional<char32_t> character = letter == u'u' ? takeCodePoint() : std::nullopt;
        if (!character) {
            return wrong(m_place - 1, u"This is not an escape. Write \\\\ for a backslash."_s);
        }
        text.append(QStringView(QChar::fromUcs4(*character)));
    }
    return wrong(begin, u"The closing quote is missing."_s);
}

//! The character of an escape: "u" and four digits, or up to six in braces. Moves to the last of them.
std::optional<char32_t> ExpressionLexer::takeCodePoint()
{
    const bool isBraced = at(1) == u'{';
    const qsizetype most = isBraced ? 6 : 4;
    const qsizetype begin = m_place + (isBraced ? 2 : 1);
    qsizetype end = begin;
    while (end < m_text.size() && end - begin < most && isHexDigit(m_text[end])) {
        ++end;
    }
    const bool isComplete =
        isBraced ? end > begin && end < m_text.size() && m_text[end] == u'}' : end - begin == most;
    const char32_t character = isComplete ? m_text.sliced(begin, end - begin).toUInt(nullptr, 16) : 0;
    if (!isComplete || character > QChar::LastValidCodePoint) {
        return {};
    }
    m_place = isBraced ? end : end - 1;
    return character;
}

qsizetype ExpressionLexer::skipDigits()
{
    const qsizetype begin = m_place;
    while (isDigit(at())) {
        ++m_place;
    }
    return m_place - begin;
}

Token ExpressionLexer::takeNumber()
{
    const qsizetype begin = m_place;
    if (at() == u'0' && at(1) == u'x') {
        m_place += 2;
        while (isHexDigit(at())) {
            ++m_place;
        }
        return token(Token::Hex, begin, m_text.sliced(begin + 2, m_place - begin - 2).toString());
    }
    if (at() == u'-') {
        ++m_place;
    }
    skipDigits();
    if (at() == u'.') {
        ++m_place;
        skipDigits();
    }
    const qsizetype exponentSign = at(1) == u'-' || at(1) == u'+' ? 1 : 0;
    if (at().toLower() == u'e' && isDigit(at(1 + exponentSign))) {
        m_place += 1 + exponentSign;
        skipDigits();
    }
    const QString digits = m_text.sliced(begin, m_place - begin).toString();
    if (at() == u'f' || at() == u'n') {
        const Token::Type type = at() == u'f' ? Token::Float : Token::Decimal;
        ++m_place;
        return continuesName(at()) ? wrong(begin, u"This is not a number."_s) : token(type, begin, digits);
    }
    return continuesName(at())
               ? wrong(begin, u"This is not a number, and a name cannot begin with a digit."_s)
               : token(Token::Number, begin, digits);
}

Token ExpressionLexer::takeColor()
{
    const qsizetype begin = m_place++;
    while (isHexDigit(at())) {
        ++m_place;
    }
    const QString digits = m_text.sliced(begin + 1, m_place - begin - 1).toString().toUpper();
    if ((digits.size() != 6 && digits.size() != 8) || continuesName(at())) {
        return wrong(begin, u"This is not a color. Write #RRGGBB or #AARRGGBB."_s);
    }
    return token(Token::Color, begin, (digits.size() == 6 ? u"#FF"_s : u"#"_s) + digits);
}

Token ExpressionLexer::takeName()
{
    const qsizetype begin = m_place;
    do {
        ++m_place;
    } while (continuesName(at()) || (at() == u'.' && beginsName(at(1))));
    return token(Token::Name, begin, m_text.sliced(begin, m_place - begin).toString());
}

Token ExpressionLexer::takeSign()
{
    const qsizetype begin = m_place;
    if (m_text.sliced(m_place).startsWith(u"::")) {
        m_place += 2;
        while (continuesName(at())) {
            ++m_place;
        }
        return token(Token::Annotation, begin, m_text.sliced(begin + 2, m_place - begin - 2).toString());
    }
    const auto follows = [this](const auto &sign) { return m_text.sliced(m_place).startsWith(sign); };
    const auto known = std::ranges::find_if(signs(), follows);
    const auto *foreign =
        std::ranges::find_if(foreignSigns, [&](const auto &row) { return follows(row.sign); });
    const bool isKnown = known != signs().end();
    if (foreign != std::end(foreignSigns) && (!isKnown || foreign->sign.size() > known->size())) {
        m_place += foreign->sign.size();
        Token taken = wrong(begin, u"Write \"%1\" instead."_s);
        taken.text = taken.text.arg(foreign->replacement);
        return taken;
    }
    if (isKnown) {
        m_place += known->size();
        return token(Token::Sign, begin, *known);
    }
    return wrong(begin, u"This character has no meaning here. Texts are in double quotes."_s);
}

bool ExpressionLexer::isPrintable(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return QChar::isPrint(c) && category != QChar::Separator_Line && category != QChar::Separator_Paragraph;
}

QString ExpressionLexer::quoted(const QString &text, QChar quote)
{
    QString result(quote);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair && isPrintable(QChar::surrogateToUcs4(c, text.at(i + 1)))) {
            result += c;
            result += text.at(++i);
            continue;
        }
        const auto *escape =
            std::ranges::find_if(escapes, [c](const auto &row) { return row.character == c.unicode(); });
        const bool isOtherQuote = (c == u'"' || c == u'\'') && c != quote;
        if (escape != std::end(escapes) && !isOtherQuote) {
            result += u'\\';
            result += QChar(escape->letter);
        } else if (!isPrintable(c.unicode())) {
            result += u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
        } else {
            result += c;
        }
    }
    return result + quote;
}

bool ExpressionLexer::isPlainName(QStringView path)
{
    for (const QStringView segment : path.split(u'.')) {
        if (segment.isEmpty() || !beginsName(segment.front())
            || !std::ranges::all_of(segment, continuesName)) {
            return false;
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
