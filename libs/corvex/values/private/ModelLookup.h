// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QSharedPointer>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
class ObjectLinkInfo;
class Project;
class ProjectVariable;
class Screen;

//! The functions that value records need from the model, which is on a higher layer and provides them when
//! the library is loaded.
class ModelLookup
{
    Q_DISABLE_COPY_MOVE(ModelLookup)

public:
    virtual ~ModelLookup() = default;

    //! The number of siblings with that name, excluding the object.
    virtual qsizetype siblingsNamed(const DesignerObject &object, const QString &name) const = 0;
    //! Whether the object of the property is in a project.
    virtual bool isInProject(const QSharedPointer<DesignerProperty> &property) const = 0;
    // Null if the name does not exist.
    virtual ProjectVariable *variable(const Project &project, const QString &name) const = 0;
    virtual DesignerObject *element(const Screen &screen, const QString &name) const = 0;
    //! See ObjectLinkInfo::findLinks().
    virtual QList<DesignerObject *> targets(const ObjectLinkInfo &link, const DesignerObject &from,
                                            bool anyObject) const = 0;

    static const ModelLookup &instance() { return *s_instance; }
    //! Not owned.
    static void provide(const ModelLookup *lookup) { s_instance = lookup; }

protected:
    ModelLookup() = default;

private:
    static inline constinit const ModelLookup *s_instance = nullptr;
};

} // namespace Halvane::Corvex::Designer
