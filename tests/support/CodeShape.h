// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/MathInfo.h"
#include "corvex/values/records/StringInfo.h"

#include <QRegularExpression>

//! The code with all string literals emptied.
inline QString withoutTexts(QString code)
{
    static const QRegularExpression text(QStringLiteral(R"("(?:[^"\\\n]|\\[^\n])*")"));
    return code.replace(text, QStringLiteral("\"\""));
}

//! The first function call in a generated document that no table contains; empty if the tables contain all.
inline QString foreignCall(const QString &document)
{
    static const QRegularExpression call(
        QStringLiteral(R"((?:(?<![\w.])([^\W\d][\w.]*)|"(?:\.concat)?|[\w)\]}]) *\()"),
        QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression known(QStringLiteral(
        R"(^(?:qmlViewer\.\w+|Math\.\w+|Boolean|String|parseInt|parseFloat|Qt\.(?:point|size)|if|)"
        R"(validateValue)$)"));
    const QString code = withoutTexts(document);
    for (QRegularExpressionMatchIterator calls = call.globalMatch(code); calls.hasNext();) {
        const QRegularExpressionMatch found = calls.next();
        const bool isMethodOfText = found.captured().startsWith(QStringLiteral("\".concat"));
        if (!isMethodOfText && !known.match(found.captured(1)).hasMatch()) {
            return found.captured();
        }
    }
    return {};
}

//! The first part of generated code that no table contains; empty if the tables contain all. Texts may
//! contain anything. Paths that begin with "qml_" are read and assigned, never called. All other words must
//! be known.
inline QString foreignCode(QString code)
{
    using namespace Qt::StringLiterals;
    using namespace Halvane::Corvex::Designer;
    static const QSet<QString> known = [] {
        QStringList words =
            MathInfo::mathFunctions() + StringInfo::stringFunctions() + MathInfo::mathValues();
        for (const QString &word : QStringList(words)) {
            words << u"Math."_s + word << u"qmlViewer."_s + word;
        }
        words += u"qmlViewer.getVariableValue qmlViewer.getVariableValueString qmlViewer.setVariableValue "
                 "qmlViewer.assignPropertyValue qmlViewer.convertToColorFromName Math.round Boolean String "
                 "parseInt parseFloat true false NaN Infinity null"_s.split(u' ');
        return QSet<QString>(words.begin(), words.end());
    }();
    static const QRegularExpression word(uR"((?<![\w.])[^\W\d][\w.]*)"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression rest(uR"([^\w .,;:?()+\-*/%&|~^<>=!\n"])"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    const QString called = foreignCall(code);
    code = withoutTexts(code);
    for (QRegularExpressionMatchIterator words = word.globalMatch(code); words.hasNext();) {
        const QString found = words.next().captured();
        if (!known.contains(found) && !found.startsWith("qml_"_L1)) {
            return found;
        }
    }
    return called.isEmpty() ? rest.match(code).captured() : called;
}
