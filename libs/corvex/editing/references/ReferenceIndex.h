// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/editing/references/ReferenceForm.h"

#include <QSet>

#include <set>

namespace Halvane::Corvex::Designer {

class Project;
class ReferenceTarget;
class Screen;

/*! Finds the properties that name an object, so that a rename does not have to search the project.

    The index is built on first use and after the project was loaded, and then follows the changes of the
    model.
*/
class CORVEX_EXPORT ReferenceIndex : public ModelObserver
{
public:
    //! The index of the project. It is deleted together with the project.
    static ReferenceIndex &of(Project *project);

    //! The properties that may name the target, without duplicates; only their values can confirm it.
    QList<SharedProperty> candidates(const ReferenceTarget &target) const;
    //! The properties that may refer to that name: to an object of \a screen or, without a screen, to one
    //! known everywhere.
    QSet<SharedProperty> mentioning(const Screen *screen, const QString &name) const;

    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override;
    void replaced(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                  DesignerObject *newObject) override;
    void projectAboutToLoad() override;
    void projectAboutToBeDestroyed() override;

private:
    ReferenceIndex() = default;

    struct Entry
    {
        /*! The screen whose properties mention the name; null for names of variables, screens and images. A
           scope of its own is for elements that are mentioned from elsewhere: by name outside of all screens,
           and as "screen.name" in paths, which may begin with the name of another screen. */
        const void *scope;
        QString name;
        SharedProperty property;

        bool operator<(const Entry &other) const;
    };

    //! The index entries for a mention; some may be equal.
    static QList<Entry> entriesOf(const Mention &mention, const Screen *screen,
                                  const SharedProperty &property);
    void update(const SharedProperty &property, const Mention &mention, bool add);
    static bool sharesName(const Mention &mention, const QSet<QStringView> &names);
    //! For all properties of the object and of everything below it.
    void updateAll(const DesignerObject *object, bool add);
    //! Adds the properties that may refer to an element of the screen, or to something else without a screen.
    void find(const Screen *screen, const QString &name, QSet<SharedProperty> &found) const;
    void findIn(const void *scope, const QString &name, QSet<SharedProperty> &found) const;

    std::set<Entry> m_entries;
    bool m_isBuilt = false;
};

} // namespace Halvane::Corvex::Designer
