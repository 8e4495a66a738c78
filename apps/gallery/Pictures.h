// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/EditorRequests.h"

#include "Stage.h"

#include <QStringList>

namespace Halvane::Corvex::Gallery {

//! Draws the pictures of the gallery into a folder, with the style and the palette of the application.
class Pictures
{
public:
    Pictures(Stage &stage, const QString &folder);

    //! Draws all. Returns what could not be drawn, one line each.
    QStringList draw();

private:
    void drawIcons();
    void drawPanels();
    void drawColorPopups();
    void drawEditors();
    void drawReferences();
    void drawExpressions();
    void drawEditor(const QString &name, const QString &className, const QString &id);
    void save(QWidget &widget, const QString &name);
    //! Serves all requests, so that editors offer them.
    void serve(Designer::EditorRequests &requests) const;

    Stage &m_stage;
    QString m_folder;
    Designer::EditorRequests m_requests;
    QStringList m_errors;
};

} // namespace Halvane::Corvex::Gallery
