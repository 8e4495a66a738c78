// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;
class Screen;
struct Mention;

//! The names of pasted objects in their new project, and the references that follow.
class PastedNames
{
public:
    //! The objects come from a screen with the name \a from, and go to \a screen, which may be null.
    PastedNames(const Project &project, const Screen *screen, const QString &from);

    //! Keeps the names of the object and of everything below it from being given to others.
    void expect(const DesignerObject &object);
    // Each names an object that is not in a model: it keeps its name if that is free.
    void nameVariable(DesignerObject &variable);
    void nameScreen(DesignerObject &screen);
    //! Also the members of a group.
    void nameElement(DesignerObject &element);
    void renameImage(const QString &from, const QString &to);

    //! Rewrites the references in the object and below it.
    void follow(DesignerObject &object) const;
    //! A sentence about the new names; empty if there is none.
    QString note() const;

private:
    using Names = QHash<QString, QString>;
    template<class IsFree>
    void name(DesignerObject &object, Names &names, const IsFree &isFree);
    void rename(Mention &mention) const;

    const Project &m_project;
    const Screen *m_screen;
    QString m_from;
    Names m_variables;
    Names m_screens;
    Names m_images;
    Names m_elements; //!< also those that keep their names
    QSet<QString> m_given;
    QSet<QString> m_expected;
    QHash<QString, qint64> m_nextNumbers;
    QStringList m_renamed; //!< "pump1 → pump2"
};

} // namespace Halvane::Corvex::Designer
