// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/AssignInfo.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/MathInfo.h"
#include "corvex/values/records/BoolInfo.h"
#include "corvex/values/records/ModbusCommandInfo.h"
#include "corvex/values/records/StringInfo.h"

#include "FuzzSupport.h"
#include "ScriptEngine.h"
#include "support/CodeShape.h"

#include <QCoreApplication>
#include <QJSEngine>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

QJSEngine &scriptEngine()
{
    static int argc = 1;
    static char name[] = "terms";
    static char *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static QJSEngine engine;
    return engine;
}

//! The leading throw keeps the code from running, so an error can only come from parsing it.
bool canBeRead(const QString &code)
{
    return !scriptEngine().evaluate(u"throw null;\n"_s + code).isError();
}

//! Operators and functions are only parts of code; constants of the other data types have no code.
bool isOperand(const Info &term)
{
    const bool isLiteral = term.dataType() >= Info::BooleanData && term.dataType() <= Info::ColorData;
    return term.valueType() == Info::ObjectValue || term.valueType() == Info::VariableValue
           || (term.valueType() == Info::ConstantValue && isLiteral);
}

template<class Kind>
void checkCode(const Info &term)
{
    const Kind kind(term);
    for (int output = Info::RawOutput; output <= Info::NoOutput; ++output) {
        const QString code = kind.toQmlString(Info::OutputType(output));
        Fuzz::require(code.isEmpty() || !isOperand(term) || canBeRead(u'(' + code + u')'), "code of a term",
                      code);
    }
    Fuzz::require(kind.toVariant() == Info(term).toVariant(), "a kind adds no data", term.toString());
}

//! Every assignment must be a statement.
void checkAssignments(const QString &text)
{
    const GeneralDataList list(text);
    for (int output = Info::RawOutput; output <= Info::NoOutput; ++output) {
        const QString code = list.toQmlString(Info::OutputType(output), GeneralDataList::AssignExpression);
        Fuzz::require(canBeRead(code), "code of an assignment", code);
    }
}

//! Returns parts for terms.
class Author
{
public:
    Author(const std::uint8_t *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    { }

    bool isDone() const { return m_size == 0; }

    Info term()
    {
        const int types = number();
        const int chosen = number();
        return Info(Info::ValueType(types % 9), Info::DataType(types / 9 % 15),
                    chosen < values().size() ? values().at(chosen) : text(chosen - int(values().size())));
    }

private:
    static const QStringList &values()
    {
        static const QStringList list = MathInfo::mathOperators() + MathInfo::booleanOperators()
                                        + MathInfo::mathFunctions() + StringInfo::stringFunctions()
                                        + QStringList{u"a.b"_s,
                                                      u"alert"_s,
                                                      u"1"_s,
                                                      u"true"_s,
                                                      u"00FF"_s,
                                                      u"#80FF0000"_s,
                                                      u"PI"_s,
                                                      u"\\"_s,
                                                      u"\""_s,
                                                      u"x/.a(alert(1))//"_s,
                                                      u"a.constructor.constructor"_s,
                                                      u"null"_s,
                                                      u"\n"_s};
        return list;
    }

    int number()
    {
        const int byte = isDone() ? 0 : *m_data;
        m_data += isDone() ? 0 : 1;
        m_size -= isDone() ? 0 : 1;
        return byte;
    }

    QString text(int length)
    {
        const std::size_t taken = std::min(m_size, std::size_t(std::max(length, 0)));
        const QString result = Fuzz::toText(m_data, taken);
        m_data += taken;
        m_size -= taken;
        return result;
    }

    const std::uint8_t *m_data;
    std::size_t m_size;
};

//! Constants whose characters appear in code unchanged.
bool isBare(const Info &term)
{
    return term.valueType() == Info::CommandValue
           || (term.valueType() == Info::ConstantValue
               && (term.dataType() == Info::HexData || term.dataType() == Info::ReferenceData));
}

//! Terms of all types and their expressions: types that do not fit together give no code, and code only
//! contains known words.
void checkBuilt(const std::uint8_t *data, std::size_t size)
{
    Author author(data, size);
    GeneralDataList list;
    bool anyBare = false;
    while (!author.isDone()) {
        list.append(author.term());
        anyBare = anyBare || isBare(list.last());
    }
    for (int kind = GeneralDataList::GeneralExpression; kind <= GeneralDataList::StringExpression; ++kind) {
        const auto type = GeneralDataList::InfoType(kind);
        const bool goesTogether =
            list.isValidValueType(type) && list.isValidDataType(type) && list.isValidValue(type);
        for (int output = Info::RawOutput; output <= Info::NoOutput; ++output) {
            const QString code = list.toQmlString(Info::OutputType(output), type);
            Fuzz::require(code.isEmpty() || goesTogether, "code of wrong types", list.toString());
            Fuzz::require(anyBare || foreignCode(code).isEmpty(), "code of other words", code);
            Fuzz::require(foreignCall(code).isEmpty(), "a call of something else", code);
            const bool isStatement = type == GeneralDataList::AssignExpression || code.isEmpty();
            Fuzz::require(anyBare || !list.isComplete(type)
                              || canBeRead(isStatement ? code : u'(' + code + u')'),
                          "code of a complete expression", code);
        }
    }
}

} // namespace

//! A term must keep its text, and the code of an operand must be an expression.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzz::toText(data, size);
    Fuzz::checkText<Info>("term", text);
    Fuzz::checkText<GeneralDataList>("expression", text);
    bool ok = false;
    const Info term(text, &ok);
    if (ok) {
        Fuzz::checkRecord("term", term);
        checkCode<Info>(term);
        checkCode<AssignInfo>(term);
        checkCode<BoolInfo>(term);
        checkCode<MathInfo>(term);
        checkCode<StringInfo>(term);
    }
    checkAssignments(text);
    checkBuilt(data, size);
    return 0;
}
