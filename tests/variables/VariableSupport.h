// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/variables/ProjectVariable.h"

#include <QDir>

#include <memory>

namespace Halvane::Corvex::Designer {

//! A new variable, created as in the application; null if no factory knows the class.
inline std::unique_ptr<ProjectVariable> makeVariable(const QString &className)
{
    static const bool isReady = DesignerFactory::createInstance(QDir::currentPath());
    DesignerObject *object = isReady ? DesignerFactory::instance()->createObject(className) : nullptr;
    if (object) {
        object->setParent(nullptr);
    }
    return std::unique_ptr<ProjectVariable>(static_cast<ProjectVariable *>(object));
}

//! Sets the text of the property \a id.
inline bool change(ProjectVariable &variable, QStringView id, const QString &text)
{
    return variable.changePropertyValue(variable.getProperty(id), text);
}

//! The error for \a text in the property \a id of a new variable; empty if it is valid.
inline QString errorOf(const QString &className, QStringView id, const QString &text)
{
    const std::unique_ptr<ProjectVariable> variable = makeVariable(className);
    const SharedProperty property = variable->getProperty(id);
    variable->changePropertyValue(property, text);
    return property->validate() ? QString() : property->errorString();
}

inline bool isShown(const ProjectVariable &variable, QStringView id)
{
    return variable.getProperty(id)->editorParameters().value(QStringLiteral("visible"), true).toBool();
}

} // namespace Halvane::Corvex::Designer
