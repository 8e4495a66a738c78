// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ProblemKind.h"
#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

#include <QList>
#include <QPointer>
#include <QString>

namespace Halvane::Corvex::Designer {

//! A problem that prevents a project from running on the device as intended.
struct CORVEX_EXPORT Problem
{
    ProblemCode code;
    QString object;   //!< its path when the problem was found
    QString property; //!< its id; empty if the problem does not concern a property
    QString message;  //!< translated
    qint64 line = 0;  //!< in the project's file; 0 if unknown
    qint64 column = 0;
    //! The object itself; null if it was deleted, or if the problem concerns something outside of the model.
    QPointer<DesignerObject> source = {};
    bool isApproved = false; //!< known and intended, see ProblemApprovals

    //! A problem with the message of its kind, its placeholders filled with \a values.
    static Problem at(const DesignerProperty &property, ProblemCode code, const QStringList &values = {});
    static Problem at(const DesignerObject &object, ProblemCode code, const QStringList &values = {});
    //! A problem with its own message.
    static Problem withMessage(const DesignerProperty &property, ProblemCode code, const QString &message);

    const ProblemKind &kind() const { return ProblemKind::of(code); }
    Severity severity() const { return kind().severity; }
    //! The current path of the object, or its last path if it was deleted.
    QString path() const;
    //! "object: property: message"; a place in the file replaces the property. For problems that are not
    //! errors, the severity precedes the message.
    QString toString() const;
};

//! Whether one of the problems is an error, which a build refuses.
CORVEX_EXPORT bool hasErrors(const QList<Problem> &problems);

} // namespace Halvane::Corvex::Designer
