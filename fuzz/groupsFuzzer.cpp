// SPDX-License-Identifier: MIT
#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/ValueConversion.h"

#include "FuzzSupport.h"

#include <QStringList>

#include <optional>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Group = QMap<QString, QString>;

namespace {

//! Reads the group form step by step according to its definition, with a list for each step.
std::optional<Group> readSlowly(const QString &text)
{
    const QStringList parts = text.trimmed().split(u';', Qt::SkipEmptyParts);
    if (parts.isEmpty()) {
        return std::nullopt;
    }
    Group group;
    QStringList pieces;
    for (const QString &part : parts) {
        const QString item = part.trimmed();
        const QStringList fields = item.split(u':');
        if (item.isEmpty()) {
            continue;
        }
        if (fields.size() > 2 && fields[0].trimmed().compare("valueString"_L1, Qt::CaseInsensitive) == 0) {
            pieces.append(fields[1] + u':' + fields[2]);
        } else if (!pieces.isEmpty()) {
            pieces.append(item);
        } else if (fields.size() == 2) {
            group.insert(fields[0].trimmed(), fields[1].trimmed());
        } else {
            return std::nullopt;
        }
    }
    if (!pieces.isEmpty()) {
        group.insert(u"valueString"_s, pieces.join("; "_L1) + u';');
    }
    return group;
}

} // namespace

//! Groups must be read according to their definition, and read back unless they contain a free text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzz::toText(data, size);
    bool ok = false;
    const Group group = ValueConversion::toGroupProperties(text, &ok);
    const std::optional<Group> expected = readSlowly(text);
    Fuzz::require(ok == expected.has_value() && group == expected.value_or(Group()), "group", text);
    if (ok && !group.isEmpty() && !group.value(u"valueString"_s).contains(u':')) {
        const QString written = ValueConversion::toString(group);
        Fuzz::require(ValueConversion::toGroupProperties(written, &ok) == group && ok, "group", written);
    }
    return 0;
}
