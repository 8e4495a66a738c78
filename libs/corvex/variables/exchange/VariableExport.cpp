// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/VariableExport.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/variables/exchange/CsvText.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The ids of all properties except the name, in the order of the variables' own properties.
QStringList propertyIds(const QList<DesignerObject *> &variables)
{
    QStringList ids;
    QSet<QString> known{u"id"_s};
    QSet<QString> classes;
    for (const DesignerObject *variable : variables) {
        if (classes.contains(variable->className())) {
            continue;
        }
        classes.insert(variable->className());
        for (const SharedProperty &property : variable->properties()) {
            if (property->hasFlag(StoredFlag) && !known.contains(property->id())) {
                known.insert(property->id());
                ids.append(property->id());
            }
        }
    }
    return ids;
}

} // namespace

Exported VariableExport::write(const DesignerObject &project)
{
    const QList<DesignerObject *> variables = project.getProperty(u"variables")->listItems();
    const QStringList ids = propertyIds(variables);
    QString table = CsvText::row(QStringList{u"name"_s, u"class"_s} + ids);
    for (const DesignerObject *variable : variables) {
        QStringList fields{variable->getIdName(), variable->className()};
        for (const QString &id : ids) {
            const SharedProperty property = variable->getProperty(id);
            fields.append(property ? property->valueString() : QString());
        }
        table += CsvText::row(fields);
    }
    Exported exported;
    exported.files.append({project.getIdName() + u"_Variables.csv"_s, table.toUtf8()});
    return exported;
}

} // namespace Halvane::Corvex::Designer
