// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/ExpressionSyntax.h"

#include "ProjectProblems.h"

#include <QSemaphore>
#include <QThread>

namespace Halvane::Corvex::Designer {
class DesignerObject;
}

namespace Halvane::Corvex::Tool {

/*! Reads generated code as the device will do. A thread of its own reads it, since that takes longer than
    generating it. */
class CodeCheck
{
public:
    CodeCheck();
    ~CodeCheck();
    Q_DISABLE_COPY_MOVE(CodeCheck)

    //! \a qml is the document that the screen generates.
    void add(const Designer::DesignerObject &screen, const QString &qml);
    //! Of all that was added, in that order; nothing can be added any more.
    QList<Problem> problems();

private:
    struct Finding
    {
        const Designer::DesignerObject *screen;
        Designer::ExpressionSyntax::Result result;
    };

    void read(const Designer::DesignerObject &screen, const QString &qml);
    void finish();

    QThread m_thread;
    QObject m_reader; //!< lives in the thread
    QSemaphore m_room;
    // Used in the thread alone, until it has finished.
    std::unique_ptr<Designer::ExpressionSyntax> m_syntax;
    QList<Finding> m_findings;
};

} // namespace Halvane::Corvex::Tool
