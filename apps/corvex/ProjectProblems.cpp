// SPDX-License-Identifier: MIT
#include "ProjectProblems.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editors/ExpressionSyntax.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/Project.h"

#include "JsonWriter.h"
#include "ProjectFile.h"
#include "Terminal.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! A list or an object property that is invalid for nothing but what lies below it, which tells more.
bool isEcho(const DesignerProperty &property)
{
    using Common::LocalizationHelper;
    static const QString ofList =
        LocalizationHelper::coreString(u"One or more of the list's items are invalid."_s);
    static const QString ofObject =
        LocalizationHelper::coreString(u"One or more of the object's properties are invalid."_s);
    return (property.isList() && property.errorString() == ofList)
           || (property.isObject() && property.errorString() == ofObject);
}

void findInvalid(const DesignerObject &object, QList<Problem> &problems)
{
    for (const SharedProperty &property : object.properties()) {
        if (!property->isValid() && !isEcho(*property)) {
            problems.append({object.objectPath(), property->id(), property->errorString()});
        }
    }
    for (const DesignerObject *child : object.childObjects()) {
        findInvalid(*child, problems);
    }
}

//! The QML of one screen, looked at as a whole: only when something is wrong with it, each object is asked
//! for its part.
class CodeCheck
{
public:
    explicit CodeCheck(QList<Problem> &problems)
        : m_problems(problems)
    { }

    void checkScreen(const DesignerObject &screen)
    {
        const ExpressionSyntax::Result result = m_syntax.checkDocument(screen.toQml(0));
        if (!result.valid && !explains(screen.childObjects())) {
            add(screen, {}, result);
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
            // What comes of an invalid value is told already.
            if (!ofMember.valid && property->isValid()) {
                add(element, property->id(), ofMember);
            }
        }
        if (!found) {
            add(element, {}, result);
        }
        return true;
    }

    void add(const DesignerObject &object, const QString &property, const ExpressionSyntax::Result &result)
    {
        m_problems.append({object.objectPath(), property,
                           u"The generated code cannot be read by the device: %1"_s.arg(result.message)});
    }

    ExpressionSyntax m_syntax;
    QList<Problem> &m_problems;
};

} // namespace

QString Problem::toString() const
{
    const QString place = line > 0 ? u"line %1, column %2"_s.arg(line).arg(column) : property;
    const QString text =
        place.isEmpty() ? u"%1: %2"_s.arg(object, message) : u"%1: %2: %3"_s.arg(object, place, message);
    return Terminal::oneLine(text);
}

QList<Problem> ProjectProblems::find(const ProjectFile &file, const ConfigurationContainer &models)
{
    const Project &project = file.project();
    QList<Problem> problems;
    for (const ReadNote &note : project.readNotes()) {
        problems.append({note.place, {}, note.message, note.line, note.column});
    }
    if (QString error; !models.match(project.configurationObject(), &error)) {
        problems.append({project.objectPath(), project.configuration()->id(), error});
    }
    findInvalid(project, problems);
    CodeCheck code(problems);
    for (const DesignerObject *screen : project.screens()->listItems()) {
        code.checkScreen(*screen);
    }
    return problems;
}

void ProjectProblems::printJson(const QList<Problem> &problems, Terminal &terminal)
{
    JsonWriter json(terminal);
    json.beginObject();
    json.name("problems"_L1);
    json.beginArray();
    for (const Problem &problem : problems) {
        json.beginObject();
        json.member("object"_L1, problem.object);
        json.member("property"_L1, problem.property);
        json.member("message"_L1, problem.message);
        if (problem.line > 0) {
            json.member("line"_L1, problem.line);
            json.member("column"_L1, problem.column);
        }
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

} // namespace Halvane::Corvex::Tool
