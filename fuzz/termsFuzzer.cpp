// SPDX-License-Identifier: MIT
#include "corvex/values/AssignInfo.h"
#include "corvex/values/BoolInfo.h"
#include "corvex/values/GeneralDataList.h"
#include "corvex/values/MathInfo.h"
#include "corvex/values/ModbusCommandInfo.h"
#include "corvex/values/StringInfo.h"

#include "FuzzSupport.h"

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

//! The leading throw keeps the code from running; an error can only come from reading it.
bool canBeRead(const QString &code)
{
    return !scriptEngine().evaluate(u"throw null;\n"_s + code).isError();
}

//! Operators and functions are parts of code; constants of the other kinds of data stand for no code.
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

//! Every assignment is a statement.
void checkAssignments(const QString &text)
{
    const GeneralDataList list(text);
    for (int output = Info::RawOutput; output <= Info::NoOutput; ++output) {
        const QString code = list.toQmlString(Info::OutputType(output), GeneralDataList::AssignExpression);
        Fuzz::require(canBeRead(code), "code of an assignment", code);
    }
}

} // namespace

//! The leak checker does not see into the heap of the script engine.
extern "C" const char *__asan_default_options()
{
    return "detect_leaks=0";
}

//! A term keeps its text, and the code of an operand is an expression.
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
    return 0;
}
