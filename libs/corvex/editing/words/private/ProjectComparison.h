// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/words/ProjectDiff.h"

#include <QSet>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
class ImageResource;

//! Finds the differences of a ProjectDiff: first list by list, then among what was found in one project only.
class ProjectComparison
{
public:
    ProjectComparison(const DesignerObject &before, const DesignerObject &after);

    const QList<ProjectDiff::Difference> &differences() const { return m_differences; }

private:
    enum class Within { Screen, Project };
    struct Loose
    {
        const DesignerObject *object;
        QString place;   //!< the path of its list, or of the list of that in which it is nested
        QStringList key; //!< its class, its name and its screen
        bool isNested;   //!< in another one that is loose
    };

    void compareObjects(const DesignerObject &before, const DesignerObject &after);
    //! The objects of an object property, either of which may be null.
    void compareChildren(const DesignerObject *before, const DesignerObject *after);
    void compareContents(const ImageResource &before, const ImageResource &after);
    void compareLists(const DesignerProperty &before, const DesignerProperty &after);
    void compareKept(const DesignerProperty &before, const DesignerProperty &after);
    void compareOrder(const QList<const DesignerObject *> &before,
                      const QList<const DesignerObject *> &after);
    static void addLoose(QList<Loose> &to, const DesignerObject *object, const DesignerProperty &list,
                         bool isNested);
    // All tell whether they have found anything.
    bool matchMoved(Within within);
    bool matchRenamed();
    bool matchAlike();
    static QList<QStringList> memberKeys(const Loose &loose);
    bool settle(const QSet<const DesignerObject *> &matched);
    void add(ProjectDiff::Kind kind, const DesignerObject &object, const QString &before = {},
             const QString &after = {});

    QList<ProjectDiff::Difference> m_differences;
    QList<Loose> m_gone;
    QList<Loose> m_new;
};

} // namespace Halvane::Corvex::Designer
