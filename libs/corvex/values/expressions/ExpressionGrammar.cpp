// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionGrammar.h"

#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

using Info = GeneralDataInfo;
using Words = ExpressionVocabulary;

namespace {

//! Whether functions are called; in other kinds they are plain words.
bool hasCalls(ExpressionRules::Kind kind)
{
    return kind == ExpressionRules::Kind::Math || kind == ExpressionRules::Kind::String;
}

//! Whether the function's term includes the opening parenthesis, so that its arguments follow.
bool opensCall(ExpressionRules::Kind kind, const Info &function)
{
    const bool isWholeCall = (Words::setsOf(function.value()) & Words::CompleteFunctions) != 0;
    return hasCalls(kind) && !isWholeCall;
}

//! Reads an expression term by term.
class Reader
{
public:
    explicit Reader(ExpressionRules::Kind kind)
        : m_kind(kind)
    { }

    //! Returns whether the term may follow the previous ones.
    bool take(const Info &term)
    {
        const bool isCallEmpty = std::exchange(m_isCallEmpty, false);
        switch (term.valueType()) {
        case Info::ConstantValue:
        case Info::ObjectValue:
        case Info::VariableValue:
            return std::exchange(m_needsOperand, false);
        case Info::FunctionValue:
            return takeFunction(term);
        case Info::OperatorValue:
            return takeOperator(term.value(), isCallEmpty);
        default:
            return false;
        }
    }

    bool isComplete() const { return !m_needsOperand && m_open.isEmpty(); }

private:
    enum class Opening : quint8 { Parenthesis, Call, Selection };

    bool takeFunction(const Info &function)
    {
        if (!m_needsOperand || !hasCalls(m_kind)) {
            return false;
        }
        m_isCallEmpty = opensCall(m_kind, function);
        if (m_isCallEmpty) {
            m_open.append(Opening::Call);
        }
        m_needsOperand = m_isCallEmpty;
        return true;
    }

    bool takeOperator(const QString &sign, bool isCallEmpty)
    {
        switch (sign.size() == 1 ? sign.front().unicode() : u'\0') {
        case u'(':
            m_open.append(Opening::Parenthesis);
            return m_needsOperand;
        case u')':
            return (isCallEmpty || !m_needsOperand) && !isOpen(Opening::Selection) && close();
        case u'?':
            m_open.append(Opening::Selection);
            return takeBinary();
        case u':':
            return isOpen(Opening::Selection) && close() && takeBinary();
        case u',':
            return isOpen(Opening::Call) && takeBinary();
        case u'~':
            return m_needsOperand;
        case u'+':
        case u'-':
            return m_needsOperand || takeBinary();
        default:
            return takeBinary();
        }
    }

    bool takeBinary() { return !std::exchange(m_needsOperand, true); }
    bool isOpen(Opening opening) const { return !m_open.isEmpty() && m_open.last() == opening; }

    //! Closes the innermost open bracket.
    bool close()
    {
        if (m_open.isEmpty()) {
            return false;
        }
        m_open.removeLast();
        m_needsOperand = false;
        return true;
    }

    QList<Opening> m_open;
    ExpressionRules::Kind m_kind;
    bool m_needsOperand = true;
    bool m_isCallEmpty = false; //!< The previous term opened a call.
};

} // namespace

bool ExpressionGrammar::endsOperand(Kind kind, const Info &term)
{
    switch (term.valueType()) {
    case Info::OperatorValue:
        return term.value() == u')';
    case Info::FunctionValue:
        return !opensCall(kind, term);
    default:
        return true;
    }
}

qsizetype ExpressionGrammar::firstMisplaced(Kind kind, const Terms &terms)
{
    Reader reader(kind);
    const auto misplaced =
        std::find_if(terms.begin(), terms.end(), [&reader](const Info &term) { return !reader.take(term); });
    return misplaced == terms.end() && reader.isComplete() ? -1 : misplaced - terms.begin();
}

} // namespace Halvane::Corvex::Designer
