// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <optional>

class QMimeData;

namespace Halvane::Corvex::Nova {

class Workspace;

//! Cut, copy and paste of objects, within and between projects, and to and from other programs as text.
class Clipboard
{
public:
    // Failures are reported by the workspace.
    //! Returns false if the selection cannot be copied.
    static bool copy(Workspace &workspace);
    static void cut(Workspace &workspace);
    //! Pastes objects or a picture around \a middle, a point of the screen; without it, objects keep their
    //! places if these are free.
    static void paste(Workspace &workspace, const std::optional<QPointF> &middle = std::nullopt);
    //! The same for any data.
    static void paste(Workspace &workspace, const QMimeData &data, const std::optional<QPointF> &middle);
};

} // namespace Halvane::Corvex::Nova
