// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/words/ProjectDiff.h"

#include <QSet>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;
class ImageResource;

//! Finds the differences for a ProjectDiff: first list by list, then among the objects found in only one
//! project.
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
        QString place;   //!< the path of its list, or of the list that contains its outermost loose owner
        QStringList key; //!< its class, name and screen
        bool isNested;   //!< it is inside another loose object
    };

    void compareObjects(const DesignerObject &before, const DesignerObject &after);
    //! Compares the objects of an object property. Either may be null.
    void compareChildren(const DesignerObject *before, const DesignerObject *after);
    void compareContents(const ImageResource &before, const ImageResource &after);
    void compareLists(const DesignerProperty &before, const DesignerProperty &after);
    void compareKept(const DesignerProperty &before, const DesignerProperty &after);
    void compareOrder(const QList<const DesignerObject *> &before,
                      const QList<const DesignerObject *> &after);
    static void addLoose(QList<Loose> &to, const DesignerObject *object, const DesignerProperty &list,
                         bool isNested);
    // Each returns whether it found a match.
    bool matchMoved(Within within);
    bool matchRenamed();
    bool matchAlike();
    static QList<QStringList> memberKeys(const Loose &loose);
    bool removeMatched(const QSet<const DesignerObject *> &matched);
    void add(ProjectDiff::Kind kind, const DesignerObject &object, const QString &before = {},
             const QString &after = {});

    QList<ProjectDiff::Difference> m_differences;
    QList<Loose> m_gone;
    QList<Loose> m_new;
};

} // namespace Halvane::Corvex::Designer
