// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/Form.h"
#include "corvex/core/NumberRange.h"
#include "corvex/core/PropertyFlag.h"

#include <QSharedData>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
class QmlBindings;

// Checks and builds call these from several threads at once, each for different objects. They must only read
// the project.
//! Validates the value of a property. Returns false with the reason in \a error.
using ValueValidator = bool (*)(const DesignerProperty *property, QString &error);
//! Decides whether an object may enter or leave a list property.
using ItemValidator = bool (*)(const DesignerProperty *property, const DesignerObject *item, QString &error);
//! Creates a property's bindings instead of DesignerProperty::convertToBindings().
using BindingsCreator = QmlBindings (*)(const DesignerProperty *property);
//! Writes a property's QML as text, with indented lines. The text cannot be split into bindings, so states
//! and actions cannot set such a property. Prefer a BindingsCreator.
using QmlCreator = QString (*)(const DesignerProperty *property, int indent);

//! The data about a property that all instances of a class share. A property copies it when it is changed for
//! that instance only. A project with a million properties has some hundred descriptors.
struct CORVEX_EXPORT PropertyDescriptor : public QSharedData
{
    QString id;
    QByteArray utf8Id; //!< the id in files
    QString name;
    QString editor;
    QVariantMap editorParameters;
    NumberRange range; //!< the range from the editor parameters
    QString description;
    QString initialText;    //!< the text of the property while it has the value of its row; null if unknown
    QByteArray utf8Initial; //!< the same as written in files
    QStringList objectFilters;
    QString statesOf; //!< the id of the link to the element that the value describes
    ValueValidator valueValidator = nullptr;
    ItemValidator addValidator = nullptr;
    ItemValidator removeValidator = nullptr;
    BindingsCreator bindingsCreator = nullptr;
    QmlCreator qmlCreator = nullptr; //!< at most one of the two creators is set
    PropertyFlags flags;
    int rank = 99;
    Form references = Form::None;
    bool allowInvalidValue = false;
    bool needsPictures = false;
};

} // namespace Halvane::Corvex::Designer
