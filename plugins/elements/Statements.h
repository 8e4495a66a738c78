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

//! JavaScript that elements run on events.
namespace Halvane::Corvex::Elements {

//! Empty if the expression is incomplete or cannot be translated.
QString completeCode(const Designer::GeneralDataList &expression,
                     Designer::GeneralDataInfo::OutputType output, Designer::GeneralDataList::InfoType kind);
//! Empty for a term that is not a value by itself: an operator, a function, or hexadecimal digits, which a
//! script would read as a different number or a name.
QString operandCode(const Designer::GeneralDataInfo &term);

//! One statement for each pair in an expression of kind assign. Pairs that cannot be translated are skipped.
QStringList assignments(const Designer::GeneralDataList &expression);

//! Statements that set properties of the element \a name, which is searched on the screen of \a owner. The
//! map contains values by property id. Unknown properties, invalid values, the identifier, and values that
//! QML writes as a block are skipped.
QStringList assignments(const Designer::DesignerObject *owner, const QString &name,
                        const QMap<QString, QString> &values);

// QML creators for event handlers. The handler's name is "on" and the property's id: onPressedState for
// "pressedState".
//! For a list of updates of objects.
Designer::QmlBindings stateToQml(const Designer::DesignerProperty *property);
//! For a list of changes of properties.
Designer::QmlBindings changesToQml(const Designer::DesignerProperty *property);
//! For an expression of kind assign.
Designer::QmlBindings assignmentsToQml(const Designer::DesignerProperty *property);

// QML creators for expressions that the runtime keeps evaluating: "id: code".
Designer::QmlBindings mathToQml(const Designer::DesignerProperty *property);
Designer::QmlBindings conditionToQml(const Designer::DesignerProperty *property);
//! Each term separately: "id: [code, code]".
Designer::QmlBindings termsToQml(const Designer::DesignerProperty *property);

// QML creators for links to objects outside of the screen's document.
//! "id: \"name\"" with the identifier name of the target; the name is empty without a target.
Designer::QmlBindings linkNameToQml(const Designer::DesignerProperty *property);
//! "id: \"qml_name\"" with the document of a screen.
Designer::QmlBindings screenLinkToQml(const Designer::DesignerProperty *property);

} // namespace Halvane::Corvex::Elements
