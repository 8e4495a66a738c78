// SPDX-License-Identifier: MIT
#include "corvex/checks/Problem.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Fills the placeholders in one pass: a value may look like a placeholder itself.
QString filled(const QString &text, const QStringList &values)
{
    switch (values.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(values[0]);
    case 2:
        return text.arg(values[0], values[1]);
    case 3:
        return text.arg(values[0], values[1], values[2]);
    default:
        return text.arg(values[0], values[1], values[2], values[3]);
    }
}

Problem make(const DesignerObject &object, const QString &property, ProblemCode code,
             const QStringList &values)
{
    const QString english = QString::fromUtf8(ProblemKind::of(code).message);
    return {code, object.objectPath(), property,
            filled(Common::LocalizationHelper::coreString(english), values)};
}

} // namespace

Problem Problem::at(const DesignerProperty &property, ProblemCode code, const QStringList &values)
{
    return make(*property.parentObject(), property.id(), code, values);
}

Problem Problem::at(const DesignerObject &object, ProblemCode code, const QStringList &values)
{
    return make(object, {}, code, values);
}

QString Problem::toString() const
{
    QStringList parts{object};
    if (const QString place = line > 0 ? u"line %1, column %2"_s.arg(line).arg(column) : property;
        !place.isEmpty()) {
        parts.append(place);
    }
    if (severity() != Severity::Error) {
        parts.append(kind().severityWord());
    }
    parts.append(message);
    return parts.join(": "_L1);
}

bool hasErrors(const QList<Problem> &problems)
{
    return std::ranges::any_of(problems, [](const Problem &p) { return p.severity() == Severity::Error; });
}

} // namespace Halvane::Corvex::Designer
