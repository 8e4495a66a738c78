// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/core/properties/IOErrorProperty.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/values/expressions/ConditionInfo.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/records/EnumInfo.h"
#include "corvex/values/records/FieldbusErrorInfo.h"
#include "corvex/values/records/IdentifierInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/records/RangeInfo.h"
#include "corvex/values/records/ValueRangeInfo.h"
#include "corvex/variables/BACnetPropertyList.h"
#include "corvex/variables/CanParameterMap.h"
#include "corvex/variables/ModbusMap.h"

#include "FuzzSupport.h"

#include <QMetaEnum>
#include <QStringList>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::TextHelper;

namespace {

//! The text of an identifier without a name contains no name.
void checkIdentifier(const QString &text)
{
    const IdentifierInfo identifier(text, nullptr);
    if (identifier.isValid()) {
        Fuzz::checkRecord("identifier", identifier);
    }
}

//! Tables read from expressions must be written as expressions that give the same table.
template<class Table>
void checkTable(const char *kind, const QString &text, Table table)
{
    QString error;
    if (!table.read(GeneralDataList(text), error)) {
        Fuzz::require(!error.isEmpty(), kind, u"refused without a reason"_s);
        return;
    }
    const QString first = table.toTerms().toString();
    Fuzz::require(table.read(GeneralDataList(first), error), kind, first);
    Fuzz::require(table.toTerms().toString() == first, kind, first);
}

//! Sorting with an inconsistent order is undefined behaviour.
void checkOrder(bool (*isLess)(QStringView, QStringView), const QString &text)
{
    const QStringList names = text.split(u'~').first(std::min<qsizetype>(text.count(u'~') + 1, 3));
    const QString &a = names.first();
    const QString &b = names.at(names.size() / 2);
    const QString &c = names.last();
    Fuzz::require(!isLess(a, a) && !(isLess(a, b) && isLess(b, a)), "order of two names", text);
    Fuzz::require(a == b || isLess(a, b) || isLess(b, a), "names that differ", text);
    Fuzz::require(!(isLess(a, b) && isLess(b, c)) || isLess(a, c), "order of three names", text);
}

void checkEncodings(const QString &text)
{
    bool ok = false;
    Fuzz::require(TextHelper::convertFromBase64(TextHelper::convertToBase64(text), &ok) == text && ok,
                  "Base64", text);
    const QString decoded = TextHelper::convertFromBase64(text, &ok);
    Fuzz::require(!ok || TextHelper::convertToBase64(decoded) == text, "Base64", text);
    Fuzz::require(TextHelper::decryptString(TextHelper::encryptString(text), &ok) == text && ok, "cipher",
                  text);
    TextHelper::decryptString(text, &ok);
    QString stem;
    const qint64 number = TextHelper::numberFromString(text, &stem);
    Fuzz::require(number < 0 || stem + QString::number(number) == text, "number of a name", text);
}

} // namespace

//! Every record must keep its text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzz::toText(data, size);
    Fuzz::checkText<BorderInfo>("border", text);
    Fuzz::checkText<RangeInfo>("range", text);
    Fuzz::checkText<ValueRangeInfo>("range of values", text);
    Fuzz::checkText<SendErrorInfo>("errors of sending", text);
    Fuzz::checkText<ReceiveErrorInfo>("errors of receiving", text);
    Fuzz::checkText<ObjectLinkInfo>("link", text);
    Fuzz::checkText<ConditionInfo>("condition", text);
    Fuzz::checkText("errors of an input", text, IOErrorProperty::fromString, IOErrorProperty::toString);
    Fuzz::checkText(
        "enumeration", text,
        [](const QString &key, bool *ok) { return EnumInfo(QMetaEnum::fromType<Qt::Key>(), key, ok); },
        [](const EnumInfo &value) { return value.valueString(); });
    Fuzz::checkText(
        "channels", text,
        [](const QString &form, bool *ok) {
            *ok = true;
            return ChannelList(form);
        },
        [](const ChannelList &channels) { return channels.toString(); });
    checkIdentifier(text);
    checkTable("BACnet properties", text, BACnetPropertyList());
    checkTable("CAN parameters", text, CanParameterMap());
    for (const auto kind : {ModbusMap::Coil, ModbusMap::HoldingRegister, ModbusMap::VirtualString}) {
        checkTable("Modbus map", text, ModbusMap(kind));
    }
    checkOrder(TextHelper::naturalLess, text);
    checkOrder(TextHelper::fileNameLess, text);
    checkEncodings(text);
    return 0;
}
