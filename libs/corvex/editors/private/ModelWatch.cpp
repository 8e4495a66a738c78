// SPDX-License-Identifier: MIT
#include "corvex/editors/private/ModelWatch.h"

#include "corvex/core/ModelObservers.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

ModelWatch::ModelWatch(Filter concerns, QObject *parent)
    : QObject(parent)
    , m_concerns(concerns)
{ }

void ModelWatch::follow(Project *project)
{
    if (project && project != m_project) {
        m_project = project;
        project->observers().add(this);
    }
}

void ModelWatch::report()
{
    if (!m_isPending) {
        m_isPending = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isPending = false;
                if (m_project) {
                    emit changed();
                }
            },
            Qt::QueuedConnection);
    }
}

void ModelWatch::valueChanged(const SharedProperty &property, const QString &)
{
    if (m_concerns(*property)) {
        report();
    }
}

void ModelWatch::inserted(const SharedProperty &, qsizetype, DesignerObject *)
{
    report();
}

void ModelWatch::removed(const SharedProperty &, qsizetype, DesignerObject *)
{
    report();
}

void ModelWatch::projectAboutToBeDestroyed()
{
    m_project = nullptr;
}

} // namespace Halvane::Corvex::Designer
