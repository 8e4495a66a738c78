// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/document/ProjectDocument.h"

#include <QMap>
#include <QTemporaryDir>

#include <memory>

namespace Halvane::Corvex::Gallery {

//! The project in the pictures: a copy of PumpStation with an object of every class.
class Stage
{
public:
    //! Returns false with the reason in \a error.
    bool open(QString &error);

    Designer::ProjectDocument &document() { return *m_document; }
    //! The first object of each class.
    QMap<QString, Designer::DesignerObject *> objects() const;
    //! Another object of the class, at the same place in the project, with a name of its own. Null for a
    //! class whose objects have no list in the project.
    Designer::DesignerObject *another(const QString &className);

private:
    Designer::DesignerObject *add(const QString &className);

    QTemporaryDir m_folder;
    std::unique_ptr<Designer::ProjectDocument> m_document;
};

} // namespace Halvane::Corvex::Gallery
