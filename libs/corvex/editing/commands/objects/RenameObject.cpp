// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/RenameObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/references/ReferenceChanges.h"

#include <QCursor>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Shows the wait cursor, if there is one.
class WaitCursor
{
    Q_DISABLE_COPY_MOVE(WaitCursor)

public:
    WaitCursor()
        : m_isShown(qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
    {
        if (m_isShown) {
            QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        }
    }
    ~WaitCursor()
    {
        if (m_isShown) {
            QGuiApplication::restoreOverrideCursor();
        }
    }

private:
    bool m_isShown;
};

} // namespace

RenameObject::RenameObject(DesignerObject *object, const QString &className, const QString &newName,
                           const QString &title, UndoCommand *parent)
    : ModelCommand(object ? object->idProperty() : SharedProperty(), true, parent)
{
    if (!object || !object->isKindOfClass(className) || !object->listProperty()) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to rename."_s));
        return;
    }
    setTitle(title, object->getIdName());
    if (const QString error = PropertyValidators::nameError(object, newName); !error.isEmpty()) {
        refuse(error);
        return;
    }
    addChanges(ReferenceChanges::renamed(object, newName, pending()));
    IdentifierInfo info = object->getIdInfo();
    info.setName(newName);
    addValueStep(object->idProperty(), info.toString());
    addStep<SortListStep>(object->listProperty());
}

void RenameObject::redo()
{
    const WaitCursor cursor;
    ModelCommand::redo();
}

void RenameObject::undo()
{
    const WaitCursor cursor;
    ModelCommand::undo();
}

} // namespace Halvane::Corvex::Designer
