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

void append(QString &text, const QmlBinding &binding, int indent)
{
    text.resize(text.size() + indent, u'\t');
    if (!binding.name.isEmpty()) {
        text.append(binding.name).append(": "_L1);
    }
    if (indent == 0 || !binding.isBlock()) {
        text.append(binding.code);
    } else {
        text.append(QString(binding.code).replace(u'\n', u'\n' + tabs(indent)));
    }
}

QString print(const QmlBindings &bindings, int indent)
{
    constexpr qsizetype signs = 3; // colon, blank and line ending
    qsizetype size = 0;
    for (const auto &[name, code, source] : bindings) {
        size += indent + name.size() + code.size() + signs;
    }
    QString text;
    text.reserve(size);
    for (const QmlBinding &binding : bindings) {
        if (!text.isEmpty()) {
            text.append(u'\n');
        }
        append(text, binding, indent);
    }
    return text;
}

QString block(const QStringList &lines)
{
    QString code = u"{\n"_s;
    for (const QString &line : lines) {
        code.append(u'\t').append(line).append(u'\n');
    }
    return code.append(u'}');
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
