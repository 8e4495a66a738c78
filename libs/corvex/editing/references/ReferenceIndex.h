// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/editing/references/ReferenceForm.h"

#include <QSet>

#include <set>

namespace Halvane::Corvex::Designer {

class ReferenceTarget;
class Screen;

/*! Which properties of a project name what, so that a rename does not walk the project.

    Made by one walk when it is asked for first; from then on it follows the changes of the model.
*/
class CORVEX_EXPORT ReferenceIndex : public ModelObserver
{
public:
    //! That of the project, which owns it.
    static ReferenceIndex &of(Project *project);

    //! The properties that may name the target, each once; whether one does is for its value to tell.
    QList<SharedProperty> candidates(const ReferenceTarget &target) const;

    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void entered(DesignerObject *object) override;
    void leaving(DesignerObject *object) override;

private:
    explicit ReferenceIndex(Project *project);

    struct Entry
    {
        const Screen *scope; //!< the screen on which an element is named; null for what is known everywhere
        QString name;
        SharedProperty property;

        bool operator<(const Entry &other) const;
    };

    //! The entries under which a mention is found; some may be equal.
    static QList<Entry> entriesOf(const Mention &mention, const Screen *screen,
                                  const SharedProperty &property);
    void update(const SharedProperty &property, const QString &text, bool add);
    void find(const Screen *scope, const QString &name, QSet<SharedProperty> &found) const;

    std::set<Entry> m_entries;
};

} // namespace Halvane::Corvex::Designer
