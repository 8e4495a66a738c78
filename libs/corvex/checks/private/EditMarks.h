// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"

#include <QHash>
#include <QList>
#include <QSet>

namespace Halvane::Corvex::Designer {

class Project;
class Screen;

//! Follows a project and marks the objects that must be checked again: those that an edit has changed, and
//! those that refer to them, have the same name, or use the same channel.
class EditMarks : public ModelObserver
{
public:
    //! Is notified of edits while the model is being changed. Must not change the model itself.
    class Listener
    {
    public:
        virtual ~Listener() = default;
        //! The first object is marked.
        virtual void marked() = 0;
        //! The object leaves the project. It may already be reduced to a DesignerObject.
        virtual void left(const DesignerObject *object) = 0;
        //! The item has another place in its list; null if this applies to many items.
        virtual void reordered(const DesignerObject *item) = 0;
        //! All objects leave the project, which may be destroyed next.
        virtual void cleared() = 0;
    };

    EditMarks(Project &project, Listener &listener);

    //! Null after the project was destroyed.
    Project *project() const { return m_project; }

    bool isEmpty() const;
    void markAll();
    void mark(DesignerObject *object);
    void unmark(const DesignerObject *object) { m_objects.remove(object); }
    //! Takes the next marked object. A call may return null after marking more objects; only isEmpty() shows
    //! whether any are left.
    DesignerObject *take();
    //! Whether the file of the project, or the data read from it, may have changed. The call resets this.
    bool takeFileMark() { return std::exchange(m_isFileMarked, false); }
    bool takeConfigurationMark() { return std::exchange(m_isConfigurationMarked, false); }

    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override;
    void replaced(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                  DesignerObject *newObject) override;
    void moved(const SharedProperty &list, qsizetype from, qsizetype to) override;
    void reordered(const SharedProperty &list) override;
    void validityChanged(const SharedProperty &property) override;
    void descriptorChanged(const SharedProperty &property) override;
    void projectAboutToLoad() override;
    void projectLoaded() override;
    void projectSaved() override;
    void projectAboutToBeDestroyed() override;

private:
    //! A present or past name of an object.
    struct Name
    {
        const Screen *screen; //!< of an element; null if the screen was deleted
        QString text;
        bool isOfElement;

        friend bool operator==(const Name &, const Name &) = default;
        friend size_t qHash(const Name &name, size_t seed = 0)
        {
            return qHashMulti(seed, name.screen, name.text);
        }
    };
    //! A channel that at most one element of a class and a screen should use.
    struct Channel
    {
        const Screen *screen;
        QString className;
        QString value;

        friend bool operator==(const Channel &, const Channel &) = default;
        friend size_t qHash(const Channel &channel, size_t seed = 0)
        {
            return qHashMulti(seed, channel.screen, channel.className, channel.value);
        }
    };

    void wake();
    void markBelow(DesignerObject *object);
    void markName(const DesignerObject *object, const QString &name);
    void markChannel(const DesignerObject *element, const QString &value);
    void markNamesakes(const SharedProperty &list, const QString &name,
                       const DesignerObject *except = nullptr);
    //! Marks what is affected when the object is inserted or removed.
    void markMentionsOf(const DesignerObject *object);
    void leave(const DesignerObject *object);
    void leaveScreen(const DesignerObject *screen);
    void markList(const SharedProperty &list);
    void resolve(const Name &name);
    void resolve(const Channel &channel);
    void clear();

    Project *m_project;
    Listener &m_listener;
    QHash<const DesignerObject *, bool> m_objects; //!< whether the objects below it are marked, too
    QList<DesignerObject *> m_stack; //!< the last one is next; entries without a mark are ignored
    QSet<Name> m_names;
    QSet<Channel> m_channels;
    bool m_isFileMarked = false;
    bool m_isConfigurationMarked = false;
};

} // namespace Halvane::Corvex::Designer
