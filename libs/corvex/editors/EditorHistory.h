// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QObject>

namespace Halvane::Corvex::Designer {

class ProjectDocument;
class PropertyEditor;

//! Pushes the commands of editors on the history of a document. Dragging a slider or a title is one step of
//! the history, and so is a run of the wheel or of an arrow key.
class CORVEX_EXPORT EditorHistory : public QObject
{
    Q_OBJECT

public:
    //! The document must outlive this object.
    explicit EditorHistory(ProjectDocument &document, QObject *parent = nullptr);

    //! Serves the editor for its lifetime.
    void add(PropertyEditor *editor);

signals:
    //! Notes for the user about an edit that was made.
    void noted(const QStringList &notes);

private:
    void push(PropertyEditor *editor, bool isStep);

    ProjectDocument &m_document;
};

} // namespace Halvane::Corvex::Designer
