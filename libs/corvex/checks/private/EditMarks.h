// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"

#include <QHash>
#include <QList>
#include <QSet>

namespace Halvane::Corvex::Designer {

class Project;
class Screen;

//! Follows a project and marks the objects that have to be checked again: those that an edit has touched, and
//! those that name them, have the same name, or use the same channel.
class EditMarks : public ModelObserver
{
public:
    //! Hears of edits within the operations of the model, which it must not change.
    class Listener
    {
    public:
        virtual ~Listener() = default;
        //! Something is marked. Nothing was before.
        virtual void marked() = 0;
        //! The object leaves the project. It may be a bare DesignerObject by now.
        virtual void left(const DesignerObject *object) = 0;
        //! The item has another place in its list; null when many have.
        virtual void reordered(const DesignerObject *item) = 0;
        //! All objects leave the project, which may be destroyed next.
        virtual void cleared() = 0;
    };

    EditMarks(Project &project, Listener &listener);

    //! Null once the project is destroyed.
    Project *project() const { return m_project; }

    bool isEmpty() const;
    void markAll();
    void mark(DesignerObject *object);
    void unmark(const DesignerObject *object) { m_objects.remove(object); }
    //! Takes the next marked object; null when there is none. A call may only find more objects to mark, so
    //! ask isEmpty() whether there are any left.
    DesignerObject *take();
    //! Whether the file of the project or what was read from it may be another one. Reading it resets it.
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
    //! A name that an object has or had.
    struct Name
    {
        const Screen *screen; //!< of an element; null when the screen is gone
        QString text;
        bool isOfElement;

        friend bool operator==(const Name &, const Name &) = default;
        friend size_t qHash(const Name &name, size_t seed = 0)
        {
            return qHashMulti(seed, name.screen, name.text);
        }
    };
    //! What at most one element of a class and a screen should use.
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
    //! What an object brings, or takes with it.
    void markMentionsOf(const DesignerObject *object);
    void leave(const DesignerObject *object);
    void leaveScreen(const DesignerObject *screen);
    void markList(const SharedProperty &list);
    void resolve(const Name &name);
    void resolve(const Channel &channel);
    void clear();

    Project *m_project;
    Listener &m_listener;
    QHash<const DesignerObject *, bool> m_objects; //!< whether those below it are marked, too
    QList<DesignerObject *> m_stack; //!< the next one is the last; without a mark it counts no more
    QSet<Name> m_names;
    QSet<Channel> m_channels;
    bool m_isFileMarked = false;
    bool m_isConfigurationMarked = false;
};

} // namespace Halvane::Corvex::Designer
