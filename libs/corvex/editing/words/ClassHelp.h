// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
class Project;

//! What users want to know about a property. All texts are translated.
struct CORVEX_EXPORT PropertyHelp
{
    QString id;
    QString title;
    QString kind;         //!< the word of its ValueForm: "number"
    QString takes;        //!< "a number from 10 to 100"
    QString initialValue; //!< in the readable form
    QString description;  //!< without line breaks and markup
    QString line;         //!< an edit that sets it in the sample project; empty if no edit does
    QString definedBy; //!< the class that adds the property or redefines it: the class itself or a base class

    //! The help on a property of an object with the path \a path in the sample project. Without a path there
    //! is no line. \a project has the names in the value.
    static PropertyHelp of(const DesignerProperty &property, const QString &path, const Project &project);
    //! Whether the properties are the same for users.
    bool isAlike(const PropertyHelp &other) const;
};

//! A property that elements have on the device, where expressions, rules and assignments use it.
struct CORVEX_EXPORT RuntimeHelp
{
    QString id;
    QString type; //!< "a number"
    QString description;
    bool isReadOnly;
    QString definedBy; //!< the class that adds it

    static QList<RuntimeHelp> of(const DesignerObject &object);
};

/*! What users want to know about a class, taken from its row and those of its properties.

    The edits belong to a project with the objects of sampleProject(). They are examples to copy.
*/
struct CORVEX_EXPORT ClassHelp
{
    QString className;
    QString title;
    QString description;
    QStringList bases; //!< the classes from which it derives, nearest first
    QString line;      //!< an edit that adds an object; empty if no edit does
    //! Those of the class itself first, then those of the base classes, each in the order of the panel.
    QList<PropertyHelp> properties;
    QList<RuntimeHelp> runtime; //!< in the same order of classes

    //! All classes of the factory, sorted.
    static QStringList names();
    //! Nothing if the factory has no such class.
    static std::optional<ClassHelp> of(const QString &className);
    //! Without properties.
    static std::optional<ClassHelp> summaryOf(const QString &className);

    //! The name of the project in which the edits work. It has the screen "Main".
    static QString sampleName();
    //! The edits that make its other objects.
    static QStringList sampleProject();
};

} // namespace Halvane::Corvex::Designer
