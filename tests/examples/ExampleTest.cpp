// SPDX-License-Identifier: MIT
#include "ExampleTest.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/PairList.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

//! All expressions of an element, including those in the rules of a logic builder.
QList<GeneralDataList> expressionsOf(const Element &element)
{
    QList<GeneralDataList> expressions;
    for (const SharedProperty &property : element.properties()) {
        if (property->id() == "logicExpression"_L1) {
            for (const TextPair &rule : PairList(property->valueString())) {
                expressions << GeneralDataList(rule.first) << GeneralDataList(rule.second);
            }
        } else if (property->className() == "GeneralDataListProperty"_L1) {
            expressions << static_cast<const GeneralDataListProperty &>(*property).value();
        }
    }
    return expressions;
}

bool leadsSomewhere(const GeneralDataInfo &term, const Project &project, Screen &screen)
{
    if (term.valueType() == GeneralDataInfo::VariableValue) {
        return project.variables()->hasListItem(term.value());
    }
    if (term.valueType() != GeneralDataInfo::ObjectValue) {
        return true;
    }
    const auto *element = static_cast<const Element *>(term.toProcess(&screen));
    return element && element->runtimeProperties().contains(term.value().section(u'.', -1));
}

} // namespace

QStringList ExampleTest::danglingNames(const Project &project)
{
    QStringList names;
    for (DesignerObject *item : project.screens()->listItems()) {
        auto &screen = static_cast<Screen &>(*item);
        for (const Element *element : screen.getElementsOfType(u"Element"_s)) {
            for (const GeneralDataList &expression : expressionsOf(*element)) {
                for (const GeneralDataInfo &term : expression) {
                    if (!leadsSomewhere(term, project, screen)) {
                        names.append(u"%1: %2"_s.arg(element->objectPath(), term.value()));
                    }
                }
            }
        }
    }
    return names;
}

} // namespace Halvane::Corvex::Examples
