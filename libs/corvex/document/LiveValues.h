// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace Halvane::Corvex::Designer {

class Project;

/*! The values of a project while it runs, for everything that shows values, such as the expression builder.
    There is one object for each project, which exists as long as the project.

    Whoever runs the project, such as a preview in this or in another process, sets a reader and reports
    changes. Names are those of variables, "speed", and paths of properties, "Main.lamp.visible".
*/
class CORVEX_EXPORT LiveValues
    : public QObject
    , public ModelObserver
{
    Q_OBJECT

public:
    static LiveValues &of(Project &project);

    //! Returns a value as a text: "true", "1.5", "abc", "#FFC62828"; nothing if it is not known, for example
    //! because another screen is shown. It is called often and must not wait.
    using Reader = std::function<std::optional<QString>(const QString &name)>;
    //! Replaces the reader before. Set none when the project no longer runs.
    void setReader(Reader reader);
    bool hasReader() const { return bool(m_reader); }
    std::optional<QString> valueOf(const QString &name) const;

signals:
    //! Emitted by the owner of the reader. Without a name, any value may have changed.
    void changed(const QString &name);

private:
    LiveValues() = default;
    void projectAboutToBeDestroyed() override;

    Reader m_reader;
};

} // namespace Halvane::Corvex::Designer
