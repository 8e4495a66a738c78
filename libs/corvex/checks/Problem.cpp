// SPDX-License-Identifier: MIT
#include "corvex/checks/Problem.h"

#include "corvex/checks/private/FilledText.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The message of the kind.
QString message(ProblemCode code, const QStringList &values)
{
    const QString english = QString::fromUtf8(ProblemKind::of(code).message);
    return filledText(Common::LocalizationHelper::coreString(english), values);
}

Problem make(const DesignerObject &object, const QString &property, ProblemCode code, const QString &message)
{
    Problem problem{code, object.objectPath(), property, message};
    problem.source = const_cast<DesignerObject *>(&object);
    return problem;
}

} // namespace

Problem Problem::at(const DesignerProperty &property, ProblemCode code, const QStringList &values)
{
    return withMessage(property, code, Designer::message(code, values));
}

Problem Problem::at(const DesignerObject &object, ProblemCode code, const QStringList &values)
{
    return make(object, {}, code, Designer::message(code, values));
}

Problem Problem::withMessage(const DesignerProperty &property, ProblemCode code, const QString &message)
{
    return make(*property.parentObject(), property.id(), code, message);
}

QString Problem::path() const
{
    return source && source->project() ? source->objectPath() : object;
}

QString Problem::toString() const
{
    QStringList parts{path()};
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
