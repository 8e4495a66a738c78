// SPDX-License-Identifier: MIT
#include "corvex/checks/CodeCheck.h"

#include "corvex/core/DesignerObject.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! How many documents wait at most, so that they do not pile up in memory.
constexpr int roomForDocuments = 16;

/*! Looks for the objects that bring wrong code into the document of a screen. Only now each of them is asked
    for its part. */
class CodeSearch
{
public:
    explicit CodeSearch(QList<Problem> &problems)
        : m_problems(problems)
    { }

    void explain(const DesignerObject &screen, const ExpressionSyntax::Result &result)
    {
        if (!explains(screen.childObjects())) {
            m_problems.append(Problem::at(screen, ProblemCode::CodeUnreadable, {result.message}));
        }
    }

private:
    //! Whether one of the elements has wrong code, which is then among the problems.
    bool explains(const QList<DesignerObject *> &elements)
    {
        bool found = false;
        for (const DesignerObject *element : elements) {
            found = checkElement(*element) || found;
        }
        return found;
    }

    bool checkElement(const DesignerObject &element)
    {
        const ExpressionSyntax::Result result = m_syntax.checkDocument(element.toQml(0));
        if (result.valid) {
            return false;
        }
        bool found = explains(element.childObjects());
        for (const SharedProperty &property : element.properties()) {
            const QString member = property->isList() ? QString() : property->toQml(0);
            const auto ofMember = m_syntax.checkDocument(u"Item {\n%1\n}"_s.arg(member));
            found = found || !ofMember.valid;
            // An invalid value has its own problem.
            if (!ofMember.valid && property->isValid()) {
                m_problems.append(Problem::at(*property, ProblemCode::CodeUnreadable, {ofMember.message}));
            }
        }
        if (!found) {
            m_problems.append(Problem::at(element, ProblemCode::CodeUnreadable, {result.message}));
        }
        return true;
    }

    ExpressionSyntax m_syntax;
    QList<Problem> &m_problems;
};

} // namespace

CodeCheck::CodeCheck()
    : m_room(roomForDocuments)
{
    m_reader.moveToThread(&m_thread);
    m_thread.start();
}

CodeCheck::~CodeCheck()
{
    finish();
}

void CodeCheck::add(const DesignerObject &screen, const QString &qml)
{
    if (!m_thread.isRunning()) {
        read(screen, qml);
        return;
    }
    m_room.acquire();
    QMetaObject::invokeMethod(&m_reader, [this, &screen, qml] {
        read(screen, qml);
        m_room.release();
    });
}

void CodeCheck::read(const DesignerObject &screen, const QString &qml)
{
    if (!m_syntax) {
        m_syntax = std::make_unique<ExpressionSyntax>();
    }
    const ExpressionSyntax::Result result = m_syntax->checkDocument(qml);
    if (!result.valid) {
        m_findings.append({&screen, result});
    }
}

void CodeCheck::finish()
{
    // Behind everything that was added. The engine ends in the thread in which it began.
    QMetaObject::invokeMethod(&m_reader, [this] {
        m_syntax.reset();
        m_thread.quit();
    });
    m_thread.wait();
}

QList<Problem> CodeCheck::problems()
{
    finish();
    QList<Problem> problems;
    if (!m_findings.isEmpty()) {
        CodeSearch search(problems);
        for (const Finding &finding : std::as_const(m_findings)) {
            search.explain(*finding.screen, finding.result);
        }
    }
    return problems;
}

} // namespace Halvane::Corvex::Designer
