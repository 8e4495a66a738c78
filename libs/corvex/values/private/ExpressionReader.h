// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionText.h"
#include "corvex/values/private/ExpressionLexer.h"

#include <utility>

namespace Halvane::Corvex::Designer {

//! Reads tokens into terms.
class ExpressionReader
{
public:
    ExpressionReader(const QString &text, const ExpressionPurpose &purpose, const ExpressionNames &names)
        : m_lexer(text)
        , m_purpose(purpose)
        , m_names(names)
    { }

    void read();
    const std::optional<ExpressionText::Error> &error() const { return m_error; }
    const GeneralDataList &terms() const { return m_terms; }
    //! The place of a term in the text; the end of the text after the last one.
    std::pair<qsizetype, qsizetype> placeOf(qsizetype term) const
    {
        return term < m_places.size() ? m_places[term] : std::pair(m_end, qsizetype(0));
    }

private:
    bool isOperandDue() const;
    bool take(const ExpressionToken &token);
    bool takeWord(const ExpressionToken &token);
    bool takeName(const ExpressionToken &token);
    bool takeSign(const ExpressionToken &token);
    bool takeCall(const ExpressionToken &token);
    bool isCall(const ExpressionToken &name) const;
    bool isNegatable(const ExpressionToken &token) const;
    bool beginNegation(const ExpressionToken &token);
    bool endNegation(const ExpressionToken &token);
    bool takeSeparator(const ExpressionToken &token);
    void adaptToMeaning();
    void addNumbers();
    QString formOfSeparators() const;
    bool add(const ExpressionToken &token, GeneralDataInfo::ValueType valueType,
             GeneralDataInfo::DataType dataType, const QString &value);
    bool addConstant(const ExpressionToken &token, GeneralDataInfo::DataType type)
    {
        return add(token, GeneralDataInfo::ConstantValue, type, token.text);
    }
    bool fail(const ExpressionToken &token, const QString &english, const QString &name = {});

    ExpressionLexer m_lexer;
    const ExpressionPurpose &m_purpose;
    const ExpressionNames &m_names;
    GeneralDataList m_terms;
    QList<std::pair<qsizetype, qsizetype>> m_places; //!< position and length of each term
    QList<bool> m_open;            //!< for each open parenthesis or call: whether it is negated
    bool m_negates = false;        //!< the previous token is "not"
    bool m_isNegated = false;      //!< the previous terms are a negated operand
    bool m_isSeparatorDue = false; //!< "=", ";" or "," must follow
    qsizetype m_end = 0;
    std::optional<ExpressionText::Error> m_error;
};

} // namespace Halvane::Corvex::Designer
