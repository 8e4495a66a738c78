// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionText.h"
#include "corvex/values/text/ReadableText.h"

#include "FuzzSupport.h"

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

//! The first letter of a name tells its type.
class Names : public ExpressionNames
{
public:
    std::optional<Info> find(const QString &path) const override
    {
        const QString types = u"binstlc"_s;
        const qsizetype type = path.isEmpty() ? -1 : types.indexOf(path.front());
        constexpr Info::DataType all[] = {Info::BooleanData, Info::IntegerData, Info::NumberData,
                                          Info::StringData,  Info::StringData,  Info::LogData,
                                          Info::ColorData};
        return type < 0 ? std::nullopt
                        : std::optional(Info(path.contains(u'.') ? Info::ObjectValue : Info::VariableValue,
                                             all[type], path));
    }
};

//! What was read is read back to the same terms if it can be printed. Errors are inside the text.
void checkExpression(const QString &text, const ExpressionPurpose &purpose)
{
    const Names names;
    const ExpressionText::Reading reading = ExpressionText::read(text, purpose, names);
    if (reading.error) {
        Fuzz::require(reading.error->position >= 0 && reading.error->length >= 0
                          && reading.error->position + reading.error->length <= text.size(),
                      "place of an error", text);
        return;
    }
    const QString printed = ExpressionText::print(reading.terms, purpose, names);
    if (printed.isNull()) {
        return; // the printed text would look like the stored form
    }
    const ExpressionText::Reading again = ExpressionText::read(printed, purpose, names);
    Fuzz::require(!again.error && again.terms == reading.terms, "printed terms are read", printed);
}

void checkStored(const QString &text, const ExpressionPurpose &purpose)
{
    const Names names;
    const GeneralDataList terms(text);
    const QString printed = ExpressionText::print(terms, purpose, names);
    Fuzz::require(printed.isNull() || ExpressionText::read(printed, purpose, names).terms == terms,
                  "printed stored terms are read", text);
}

void checkShortForm(QString (*print)(const QString &), QString (*read)(const QString &), const QString &text)
{
    const QString stored = read(text);
    const QString printed = stored.isNull() ? QString() : print(stored);
    Fuzz::require(printed.isNull() || read(printed) == stored, "a short form", text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzz::toText(data, size);
    for (int kind = GeneralDataList::GeneralExpression; kind <= GeneralDataList::StringExpression; ++kind) {
        const ExpressionPurpose purpose{GeneralDataList::InfoType(kind)};
        checkExpression(text, purpose);
        checkStored(text, purpose);
    }
    checkExpression(text, {GeneralDataList::GeneralExpression, Info::RawOutput, true});
    const Names names;
    const ExpressionText::RuleReading rules = ExpressionText::readRules(text, names);
    if (!rules.error) {
        const QString printed = ExpressionText::printRules(rules.rules, names);
        Fuzz::require(printed.isNull() || ExpressionText::readRules(printed, names).rules == rules.rules,
                      "rules", text);
    }
    checkShortForm(&ReadableText::fromSize, &ReadableText::toSize, text);
    checkShortForm(&ReadableText::fromPoint, &ReadableText::toPoint, text);
    checkShortForm(&ReadableText::fromRange, &ReadableText::toRange, text);
    checkShortForm(&ReadableText::fromBorder, &ReadableText::toBorder, text);
    return 0;
}
