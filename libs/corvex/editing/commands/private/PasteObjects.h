// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/CompositeCommand.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/editing/commands/private/ClipText.h"

#include <QPointF>

#include <optional>

namespace Halvane::Corvex::Designer {

class PastedNames;
class Project;
class Screen;

//! Adds the contents of a copied text to a project.
class PasteObjects : public CompositeCommand
{
public:
    //! Without \a middle, elements are at their places, or beside those that are there.
    PasteObjects(ClipText clip, Project &project, Screen *screen, const std::optional<QPointF> &middle);

    const QStringList &notes() const { return m_notes; }

private:
    QString refusal(const Screen *screen) const;
    void reuseVariables(PastedNames &names);
    //! Returns why an image cannot be added, for the user; empty on success.
    QString addImages(PastedNames &names);
    void nameObjects(PastedNames &names);
    void place(const Screen &screen, const std::optional<QPointF> &middle);
    void addObjects(Screen *screen);

    ClipText m_clip;
    Project &m_project;
    QStringList m_notes;
};

} // namespace Halvane::Corvex::Designer
