// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
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

// Checks and builds call these in several threads at once, each for other objects: they only read the
// project.
//! Validates the value of a property; writes the reason into \a error when it returns false.
using ValueValidator = bool (*)(const DesignerProperty *property, QString &error);
//! Decides whether an object may enter or leave a list property.
using ItemValidator = bool (*)(const DesignerProperty *property, const DesignerObject *item, QString &error);
//! Makes a property's bindings in place of DesignerProperty::convertToBindings().
using BindingsCreator = QmlBindings (*)(const DesignerProperty *property);
//! Writes a property's QML as text, lines with their tabs. Nothing can tell its bindings apart, so states and
//! actions cannot set such a property. Prefer a BindingsCreator.
using QmlCreator = QString (*)(const DesignerProperty *property, int indent);

//! What all instances of a class share about one of their properties. A property copies it when it is changed
//! on that one instance; a project of a million properties holds some hundred descriptors.
struct CORVEX_EXPORT PropertyDescriptor : public QSharedData
{
    QString id;
    QByteArray utf8Id; //!< the id as files hold it
    QString name;
    QString editor;
    QVariantMap editorParameters;
    NumberRange range; //!< what the editor parameters say of numbers
    QString description;
    QString
        initialText; //!< what a property prints as long as it holds the value of its row; null when unknown
    QByteArray utf8Initial; //!< the same as files hold it
    QStringList objectFilters;
    ValueValidator valueValidator = nullptr;
    ItemValidator addValidator = nullptr;
    ItemValidator removeValidator = nullptr;
    BindingsCreator bindingsCreator = nullptr;
    QmlCreator qmlCreator = nullptr; //!< at most one of the two creators is set
    PropertyFlags flags;
    int rank = 99;
    bool allowInvalidValue = false;
};

} // namespace Halvane::Corvex::Designer
