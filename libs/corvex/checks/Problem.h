// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ProblemKind.h"
#include "corvex/common/Export.h"

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;

//! One thing that keeps a project from running on the device as its author means it.
struct CORVEX_EXPORT Problem
{
    ProblemCode code;
    QString object;   //!< its path
    QString property; //!< its id; empty when the problem is not that of a property
    QString message;  //!< translated
    qint64 line = 0;  //!< in the project's file, 0 when it is not known
    qint64 column = 0;

    //! A problem whose message is that of its kind, the placeholders filled with \a values.
    static Problem at(const DesignerProperty &property, ProblemCode code, const QStringList &values = {});
    static Problem at(const DesignerObject &object, ProblemCode code, const QStringList &values = {});

    const ProblemKind &kind() const { return ProblemKind::of(code); }
    Severity severity() const { return kind().severity; }
    //! "object: property: message"; the place in the file takes the place of the property. Problems that are
    //! no errors say so before the message.
    QString toString() const;
};

//! Whether one of the problems is an error, which a build refuses.
CORVEX_EXPORT bool hasErrors(const QList<Problem> &problems);

} // namespace Halvane::Corvex::Designer
