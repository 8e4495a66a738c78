// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The contents of a text of ObjectClip.
struct ClipText
{
    struct Image
    {
        QString name;
        QByteArray bytes;
    };
    using Objects = std::vector<std::unique_ptr<DesignerObject>>;

    QString screen;    //!< the name of the screen of the elements; empty if there is none
    Objects objects;   //!< what was copied
    Objects variables; //!< what the objects use
    QList<Image> images;
    QStringList notes; //!< what could not be read as it is written
    QString error;     //!< why the text cannot be read, for the user

    static ClipText read(const QString &text);
    //! The objects must be in a project.
    static QString write(const QList<DesignerObject *> &objects, const QList<DesignerObject *> &variables,
                         const QList<DesignerObject *> &images);
    static bool isClip(const QString &text);
};

} // namespace Halvane::Corvex::Designer
