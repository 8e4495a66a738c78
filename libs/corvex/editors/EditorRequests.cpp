// SPDX-License-Identifier: MIT
#include "corvex/editors/EditorRequests.h"

#include <QMetaMethod>

namespace Halvane::Corvex::Designer {

bool EditorRequests::isServed(Kind kind) const
{
    switch (kind) {
    case Object:
        return isSignalConnected(QMetaMethod::fromSignal(&EditorRequests::objectRequested));
    case NewObject:
        return isSignalConnected(QMetaMethod::fromSignal(&EditorRequests::newObjectRequested));
    case Color:
        return isSignalConnected(QMetaMethod::fromSignal(&EditorRequests::colorRequested));
    case Recording:
        return isSignalConnected(QMetaMethod::fromSignal(&EditorRequests::recordingRequested));
    }
    return false;
}

SharedProperty EditorRequests::recorded() const
{
    return m_owner ? m_recorded : SharedProperty();
}

void EditorRequests::setRecorded(const SharedProperty &changes)
{
    if (recorded() != changes) {
        m_recorded = changes;
        m_owner = changes ? changes->parentObject() : nullptr;
        emit recordingRequested(changes);
        emit changed();
    }
}

void EditorRequests::connectNotify(const QMetaMethod &signal)
{
    if (signal != QMetaMethod::fromSignal(&EditorRequests::changed)) {
        emit changed();
    }
}

void EditorRequests::disconnectNotify(const QMetaMethod &signal)
{
    // Later, because a receiver that is being destroyed holds locks here.
    if (signal != QMetaMethod::fromSignal(&EditorRequests::changed)) {
        QMetaObject::invokeMethod(this, &EditorRequests::changed, Qt::QueuedConnection);
    }
}

} // namespace Halvane::Corvex::Designer
