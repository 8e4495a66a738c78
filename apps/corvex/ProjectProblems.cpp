// SPDX-License-Identifier: MIT
#include "ProjectProblems.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/Project.h"
#include "corvex/variables/NumberVariable.h"

#include "CodeCheck.h"
#include "JsonWriter.h"
#include "ProjectFile.h"
#include "ReferenceCheck.h"
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

//! Variables whose text is kept as it was typed and is no number: the device would get no value for them.
void findNoNumbers(const Project &project, QList<Problem> &problems)
{
    for (const DesignerObject *object : project.variables()->listItems()) {
        const auto *variable = static_cast<const ProjectVariable *>(object);
        const SharedProperty value = variable->value();
        if (value->isValid() && NumberVariable::lacksNumber(*variable)) {
            problems.append({variable->objectPath(), value->id(),
                             u"\"%1\" is no number that the device can hold."_s.arg(value->valueString())});
        }
    }
}

//! What the project tells of itself.
QList<Problem> findStated(const ProjectFile &file, const ConfigurationContainer &models)
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
    findNoNumbers(project, problems);
    return problems + ReferenceCheck::find(project);
}

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
    CodeCheck code;
    for (const DesignerObject *screen : file.project().screens()->listItems()) {
        code.add(*screen, screen->toQml(0));
    }
    return find(file, models, code);
}

QList<Problem> ProjectProblems::find(const ProjectFile &file, const ConfigurationContainer &models,
                                     CodeCheck &code)
{
    const QList<Problem> stated = findStated(file, models);
    return stated + code.problems();
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
