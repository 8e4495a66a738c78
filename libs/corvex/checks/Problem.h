// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ProblemKind.h"
#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

#include <QList>
#include <QPointer>
#include <QString>

namespace Halvane::Corvex::Designer {

//! One thing that keeps a project from running on the device as its author means it.
struct CORVEX_EXPORT Problem
{
    ProblemCode code;
    QString object;   //!< its path when the problem was found
    QString property; //!< its id; empty when the problem is not that of a property
    QString message;  //!< translated
    qint64 line = 0;  //!< in the project's file, 0 when it is not known
    qint64 column = 0;
    //! The object itself; null when it is gone, and for a problem of what is not in the model.
    QPointer<DesignerObject> source = {};
    bool isApproved = false; //!< somebody knows of it and wants it so, see ProblemApprovals

    //! A problem whose message is that of its kind, the placeholders filled with \a values.
    static Problem at(const DesignerProperty &property, ProblemCode code, const QStringList &values = {});
    static Problem at(const DesignerObject &object, ProblemCode code, const QStringList &values = {});
    //! A problem with a message of its own.
    static Problem withMessage(const DesignerProperty &property, ProblemCode code, const QString &message);

    const ProblemKind &kind() const { return ProblemKind::of(code); }
    Severity severity() const { return kind().severity; }
    //! The path that the object has now. The path that it had when it is gone.
    QString path() const;
    //! "object: property: message"; the place in the file takes the place of the property. Problems that are
    //! no errors say so before the message.
    QString toString() const;
};

//! Whether one of the problems is an error, which a build refuses.
CORVEX_EXPORT bool hasErrors(const QList<Problem> &problems);

} // namespace Halvane::Corvex::Designer
