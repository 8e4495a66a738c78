// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSet>
#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerObject;
class DesignerProperty;
class ImageResource;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Tool {

/*! What became of one project in another: objects that came, went, were renamed or moved, and values that
   changed.

    An object is the same when it has the same name and class in the same list. What is gone from one list and
   new in another under its name was moved, into a new group for example. What is gone and what is new in one
   list were renamed when nothing but the name tells them apart, or when half of what they hold is the same.
   Of an object that came or went, what is in it is not told, unless it was moved. What is kept as text, since
   no plug-in knows it, is compared as text. */
class ProjectDiff
{
public:
    enum Kind { Added, Removed, Renamed, Moved, Changed };
    struct Difference
    {
        Kind kind;
        QString path; //!< of the object; of the property when a value changed
        QString className;
        QString before; //!< the old value, name or place; the XML of what is kept
        QString after;
    };

    ProjectDiff(const Designer::DesignerObject &before, const Designer::DesignerObject &after);

    const QList<Difference> &differences() const { return m_differences; }
    //! "added", "removed", "renamed", "moved" and "changed".
    static QString nameOf(Kind kind);

private:
    enum class Within { Screen, Project };
    struct Loose
    {
        const Designer::DesignerObject *object;
        QString place;   //!< the path of its list, or of the list of that in which it is nested
        QStringList key; //!< its class, its name and its screen
        bool isNested;   //!< in another one that is loose
    };

    void compareObjects(const Designer::DesignerObject &before, const Designer::DesignerObject &after);
    //! The objects of an object property, either of which may be null.
    void compareChildren(const Designer::DesignerObject *before, const Designer::DesignerObject *after);
    void compareContents(const Designer::ImageResource &before, const Designer::ImageResource &after);
    void compareLists(const Designer::DesignerProperty &before, const Designer::DesignerProperty &after);
    void compareKept(const Designer::DesignerProperty &before, const Designer::DesignerProperty &after);
    void compareOrder(const QList<const Designer::DesignerObject *> &before,
                      const QList<const Designer::DesignerObject *> &after);
    static void addLoose(QList<Loose> &to, const Designer::DesignerObject *object,
                         const Designer::DesignerProperty &list, bool isNested);
    // All tell whether they have found anything.
    bool matchMoved(Within within);
    bool matchRenamed();
    bool matchAlike();
    static QList<QStringList> memberKeys(const Loose &loose);
    bool settle(const QSet<const Designer::DesignerObject *> &matched);
    void add(Kind kind, const Designer::DesignerObject &object, const QString &before = {},
             const QString &after = {});

    QList<Difference> m_differences;
    QList<Loose> m_gone;
    QList<Loose> m_new;
};

} // namespace Halvane::Corvex::Tool
