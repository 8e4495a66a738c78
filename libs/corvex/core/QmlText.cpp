// SPDX-License-Identifier: MIT
#include "corvex/core/QmlText.h"

#include "corvex/common/TextHelper.h"
#include "corvex/values/text/ObjectPath.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::QmlText {

QString tabs(int indent)
{
    return QString(indent, u'\t');
}

QString line(int indent, const QString &id, const QString &value)
{
    QString text;
    text.reserve(indent + id.size() + 2 + value.size());
    text.resize(indent, u'\t');
    return text.append(id).append(": "_L1).append(value);
}

QString quoted(const QString &text)
{
    return u'"' + Common::TextHelper::toQmlValueString(text) + u'"';
}

QString reference(const QString &name)
{
    return name.isEmpty() || ObjectPath::isSegment(name) ? u"qml_"_s + name : QString();
}

QString array(const QStringList &values)
{
    return u'[' + values.join(u", "_s) + u']';
}

} // namespace Halvane::Corvex::Designer::QmlText
