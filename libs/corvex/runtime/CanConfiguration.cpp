// SPDX-License-Identifier: MIT
#include "corvex/runtime/CanConfiguration.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/variables/CANVariable.h"
#include "corvex/variables/CanParameterMap.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString text(int number)
{
    return QString::number(number);
}

QString text(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

void addParameter(QVariantMap &group, const QString &key, const CanParameter &parameter)
{
    const std::pair<QString, QString> entries[] = {
        {u"idSPN|%1"_s, text(parameter.spn)},        {u"units|%1"_s, parameter.units},
        {u"posByte|%1"_s, text(parameter.byte)},     {u"posBit|%1"_s, text(parameter.bit)},
        {u"size|%1"_s, text(parameter.length)},      {u"offset|%1"_s, text(parameter.offset)},
        {u"rangeMin|%1"_s, text(parameter.minimum)}, {u"rangeMax|%1"_s, text(parameter.maximum)},
        {u"scaling|%1"_s, text(parameter.scaling)},
    };
    for (const auto &[form, value] : entries) {
        group.insert(form.arg(key), value);
    }
}

} // namespace

void CanConfiguration::add(const CANVariable &variable)
{
    CanParameterMap map;
    QString error;
    if (!map.read(valueAs<GeneralDataListProperty>(variable.parameterMap()), error)) {
        return;
    }
    const QString key = u"%1,%2"_s.arg(text(map.pgn()), text(map.sourceAddress()));
    QVariantMap &group = m_groups[key];
    if (group.isEmpty()) {
        group = {{u"pgn"_s, text(map.pgn())},
                 {u"priority"_s, text(map.priority())},
                 {u"sourceAddress"_s, text(map.sourceAddress())}};
    }
    const int count = group.value(u"dataCount"_s).toInt() + int(map.parameters().size());
    group.insert(u"dataCount"_s, text(count));
    int place = 0;
    for (const CanParameter &parameter : map.parameters()) {
        addParameter(group, u"%1,%2"_s.arg(variable.getIdName(), text(++place)), parameter);
    }
    m_identifiers.insert(QString::number(map.identifier()), key);
}

QVariantMap CanConfiguration::toMap() const
{
    QVariantMap groups;
    for (auto group = m_groups.cbegin(); group != m_groups.cend(); ++group) {
        groups.insert(groups.cend(), group.key(), group.value());
    }
    return {{u"pgnInfo"_s, groups}, {u"canIdInfo"_s, m_identifiers}};
}

} // namespace Halvane::Corvex::Designer
