// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"
#include "corvex/editing/graphics/CanvasState.h"
#include "corvex/editing/graphics/SnapLines.h"

#include <QHash>
#include <QObject>
#include <QPointer>

namespace Halvane::Corvex::Designer {
class Project;
class Screen;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

/*! What the user has set up to work on a project: hidden and locked elements and guides. It is kept in the
    settings of the user for each project file, not in the project.
*/
class ViewState
    : public QObject
    , private Designer::ModelObserver
{
    Q_OBJECT

public:
    //! Reads the settings. The project must outlive this object.
    explicit ViewState(Designer::Project &project, QObject *parent = nullptr);
    //! Writes the settings.
    ~ViewState() override;

    void setFlag(const QList<Designer::DesignerObject *> &objects, Designer::CanvasState::Flag flag, bool on);
    //! Shows and unlocks all elements of the screen.
    void clearFlags(const Designer::Screen &screen);

    //! The guides of the user, with the grid.
    Designer::SnapGuides guidesOf(const Designer::Screen *screen) const;
    void setGuides(Designer::Screen *screen, const Designer::SnapGuides &guides);
    //! For all projects.
    static bool hasGrid();
    void setGrid(bool on);
    static constexpr double gridStep = 10;

signals:
    void flagsChanged();
    void guidesChanged();

private:
    void projectAboutToLoad() override;
    void projectLoaded() override;
    void read();
    void write() const;
    void setFlags(Designer::DesignerObject *object, Designer::CanvasState::Flags flags);

    Designer::Project &m_project;
    QHash<const Designer::DesignerObject *, QPointer<Designer::DesignerObject>> m_flagged;
    struct Guides
    {
        QPointer<Designer::DesignerObject> screen;
        Designer::SnapGuides guides;
    };
    QList<Guides> m_guides;
};

} // namespace Halvane::Corvex::Nova
