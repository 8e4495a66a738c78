// SPDX-License-Identifier: MIT
#include "corvex/widgets/Arithmetic.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

constexpr int deepest = 100;

//! Reads a calculation from left to right. After an error, all further results are without meaning.
class Calculation
{
public:
    Calculation(QStringView text, const QList<Arithmetic::Unit> &units)
        : m_text(text)
        , m_units(units)
    { }

    double read()
    {
        const double result = sum();
        skipSpaces();
        if (m_place < m_text.size()) {
            fail();
        }
        if (m_error.isEmpty() && !std::isfinite(result)) {
            m_error = LocalizationHelper::coreString(u"The result of the calculation is too large."_s);
        }
        return result;
    }

    const QString &error() const { return m_error; }
    bool isPlain() const { return m_isPlain; }

private:
    double sum()
    {
        double result = product();
        for (;;) {
            if (take(u"+")) {
                result += product();
            } else if (take(u"-\u2212")) {
                result -= product();
            } else {
                return result;
            }
            m_isPlain = false;
        }
    }

    double product()
    {
        double result = factor();
        for (;;) {
            if (take(u"*\u00D7\u00B7")) {
                result *= factor();
            } else if (take(u"/\u00F7")) {
                const double divisor = factor();
                if (divisor == 0) {
                    fail(u"The calculation divides by 0."_s);
                }
                result /= divisor;
            } else {
                return result;
            }
            m_isPlain = false;
        }
    }

    double factor()
    {
        if (++m_depth > deepest) {
            fail(u"The calculation has too many parentheses."_s);
        }
        double result = 0;
        if (!m_error.isEmpty()) {
            m_place = m_text.size();
        } else if (take(u"-\u2212")) {
            result = -factor();
        } else if (take(u"+")) {
            result = factor();
        } else if (take(u"(")) {
            m_isPlain = false;
            result = sum();
            if (!take(u")")) {
                fail(u"A closing parenthesis is missing."_s);
            }
        } else {
            result = quantity();
        }
        --m_depth;
        return result;
    }

    //! A number, or several with units: "1 min 30 s".
    double quantity()
    {
        double result = 0;
        bool hasUnit = false;
        do {
            result += number() * unit(hasUnit);
            skipSpaces();
        } while (hasUnit && m_error.isEmpty() && m_place < m_text.size() && m_text[m_place].isDigit());
        return result;
    }

    double number()
    {
        skipSpaces();
        const qsizetype begin = m_place;
        const auto skipDigits = [this] {
            while (m_place < m_text.size() && m_text[m_place] >= u'0' && m_text[m_place] <= u'9') {
                ++m_place;
            }
        };
        skipDigits();
        if (m_place < m_text.size() && (m_text[m_place] == u'.' || m_text[m_place] == u',')) {
            ++m_place;
            skipDigits();
        }
        bool ok = false;
        const QString text = m_text.sliced(begin, m_place - begin).toString().replace(u',', u'.');
        const double result = ValueConversion::toReal(text, &ok);
        if (!ok) {
            fail();
        }
        return result;
    }

    double unit(bool &isThere)
    {
        skipSpaces();
        const qsizetype begin = m_place;
        while (m_place < m_text.size()
               && (m_text[m_place].isLetter() || m_text[m_place] == u'%' || m_text[m_place] == u'\u00B0')) {
            ++m_place;
        }
        const QStringView word = m_text.sliced(begin, m_place - begin);
        isThere = !word.isEmpty();
        if (!isThere) {
            return 1;
        }
        m_isPlain = false;
        for (const Arithmetic::Unit &known : m_units) {
            if (word.compare(known.word, Qt::CaseInsensitive) == 0) {
                return known.factor;
            }
        }
        fail();
        return 1;
    }

    bool take(QStringView signs)
    {
        skipSpaces();
        if (m_place < m_text.size() && signs.contains(m_text[m_place])) {
            ++m_place;
            return true;
        }
        return false;
    }

    void skipSpaces()
    {
        while (m_place < m_text.size() && m_text[m_place].isSpace()) {
            ++m_place;
        }
    }

    void fail(const QString &english = {})
    {
        if (!m_error.isEmpty()) {
            return;
        }
        QStringList words;
        for (const Arithmetic::Unit &known : m_units) {
            words.append(known.word);
        }
        m_error =
            !english.isEmpty() ? LocalizationHelper::coreString(english)
            : words.isEmpty()
                ? LocalizationHelper::coreString(
                    u"This is neither a number nor a calculation such as 2 * 48 + 6."_s)
                : LocalizationHelper::coreString(
                      u"This is neither a number nor a calculation such as 2 * 48 + 6. Units are: %1."_s)
                      .arg(words.join(u", "_s));
        m_place = m_text.size();
    }

    QStringView m_text;
    const QList<Arithmetic::Unit> &m_units;
    qsizetype m_place = 0;
    int m_depth = 0;
    QString m_error;
    bool m_isPlain = true;
};

//! "+=" and so on.
struct Change
{
    char16_t sign;
    double (*apply)(double current, double operand);
};

constexpr Change changes[] = {
    {u'+', [](double current, double operand) { return current + operand; }},
    {u'-', [](double current, double operand) { return current - operand; }},
    {u'*', [](double current, double operand) { return current * operand; }},
    {u'/', [](double current, double operand) { return current / operand; }},
};

} // namespace

Arithmetic::Result Arithmetic::evaluate(const QString &text, double current, const QList<Unit> &units)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const auto change = std::ranges::find_if(changes, [trimmed](const Change &row) {
        return trimmed.size() > 1 && trimmed[0] == row.sign && trimmed[1] == u'=';
    });
    const bool isChange = change != std::end(changes);
    Calculation calculation(isChange ? trimmed.sliced(2) : trimmed, units);
    Result result;
    result.isChange = isChange;
    result.number = calculation.read();
    result.error = calculation.error();
    result.isPlain = !isChange && calculation.isPlain();
    if (isChange && result.error.isEmpty()) {
        result.number = change->apply(current, result.number);
        if (!std::isfinite(result.number)) {
            result.error =
                LocalizationHelper::coreString(u"\"%1\" gives no number here."_s).arg(trimmed.toString());
        }
    }
    return result;
}

} // namespace Halvane::Corvex::Designer
