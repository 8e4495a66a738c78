// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/checks/Problem.h"

#include <QSemaphore>
#include <QThread>

namespace Halvane::Corvex::Designer {

/*! Reads generated code as the device will do. A thread of its own reads it, since that takes longer than
    generating it. */
class CodeCheck
{
public:
    CodeCheck();
    ~CodeCheck();
    Q_DISABLE_COPY_MOVE(CodeCheck)

    //! \a qml is the document that the screen generates.
    void add(const DesignerObject &screen, const QString &qml);
    //! Of all that was added, in that order; nothing can be added any more.
    QList<Problem> problems();

private:
    struct Finding
    {
        const DesignerObject *screen;
        ExpressionSyntax::Result result;
    };

    void read(const DesignerObject &screen, const QString &qml);
    void finish();

    QThread m_thread;
    QObject m_reader; //!< lives in the thread
    QSemaphore m_room;
    // Used in the thread alone, until it has finished.
    std::unique_ptr<ExpressionSyntax> m_syntax;
    QList<Finding> m_findings;
};

} // namespace Halvane::Corvex::Designer
