// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {
class DesignerObject;
class DesignerProperty;
class QmlBindings;
} // namespace Halvane::Corvex::Designer

//! JavaScript that elements run when something happens to them.
namespace Halvane::Corvex::Elements {

//! Empty when the expression is not complete or cannot be translated.
QString completeCode(const Designer::GeneralDataList &expression,
                     Designer::GeneralDataInfo::OutputType output, Designer::GeneralDataList::InfoType kind);
/*! Empty for a term that is no value by itself: an operator, a function, and hexadecimal digits, which a
   script would take for another number or a name. */
QString operandCode(const Designer::GeneralDataInfo &term);

//! One statement for each pair of an expression of kind assign; pairs that cannot be translated are left out.
QStringList assignments(const Designer::GeneralDataList &expression);

/*! Statements that give the element \a name, looked up on the screen of \a owner, the values of a map from
   property id to value text. A property that the element does not have, a text that is no value of it, the
   identifier, and a value that QML writes as a block of its own give no statement. */
QStringList assignments(const Designer::DesignerObject *owner, const QString &name,
                        const QMap<QString, QString> &values);

// QML creators. The handler's name is the property's id behind "on": onPressedState for "pressedState".
//! For a list of updates of objects.
Designer::QmlBindings stateToQml(const Designer::DesignerProperty *property);
//! For a list of changes of properties.
Designer::QmlBindings changesToQml(const Designer::DesignerProperty *property);
//! For an expression of kind assign.
Designer::QmlBindings assignmentsToQml(const Designer::DesignerProperty *property);

// QML creators for expressions that the runtime follows: "id: code".
Designer::QmlBindings mathToQml(const Designer::DesignerProperty *property);
Designer::QmlBindings conditionToQml(const Designer::DesignerProperty *property);
//! The terms one by one: "id: [code, code]".
Designer::QmlBindings termsToQml(const Designer::DesignerProperty *property);

// QML creators for links to what is no object of the screen's document.
//! "id: \"name\"", the identifier name of the target, empty without one.
Designer::QmlBindings linkNameToQml(const Designer::DesignerProperty *property);
//! "id: \"qml_name\"", the document of a screen.
Designer::QmlBindings screenLinkToQml(const Designer::DesignerProperty *property);

} // namespace Halvane::Corvex::Elements
