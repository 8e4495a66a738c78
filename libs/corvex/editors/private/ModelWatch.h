// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"

#include <QObject>

namespace Halvane::Corvex::Designer {

class Project;

/*! For editors that show more of a project than their own values: reports changes of certain properties, and
    objects that enter or leave the project. Many changes in a row are reported once, when the program is
   idle.
*/
class ModelWatch
    : public QObject
    , private ModelObserver
{
    Q_OBJECT

public:
    using Filter = bool (*)(const DesignerProperty &property);

    //! \a concerns selects the properties whose values matter.
    ModelWatch(Filter concerns, QObject *parent);

    //! Follows that project from now on.
    void follow(Project *project);
    //! Reports a change, like one of the project.
    void report();

signals:
    void changed();

private:
    void valueChanged(const SharedProperty &property, const QString &previousValue) override;
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void removed(const SharedProperty &list, qsizetype index, DesignerObject *object) override;
    void projectAboutToBeDestroyed() override;

    Filter m_concerns;
    Project *m_project = nullptr; //!< only compared
    bool m_isPending = false;
};

} // namespace Halvane::Corvex::Designer
