// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/state/SavedState.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

namespace Halvane::Corvex::Preview {

//! Saves the properties that auto-setting variables list, and restores them.
class AutoSettings : public QObject
{
    Q_OBJECT

public:
    explicit AutoSettings(SavedState &state);

    //! The paths in the record of a variable, which stores them as an expression. A path is "Main.box.color",
    //! or "box.color" for the elements with that name on every screen.
    static QStringList pathsOf(const QVariantMap &record);

    void add(const QStringList &paths) { m_paths += paths; }
    //! Applies the saved values to the elements of a screen and watches the elements until it is deleted.
    void attach(const QString &screen, const std::function<QObject *(const QString &)> &find);

private:
    SavedState &m_state;
    QStringList m_paths;
    //! for the current screen
    std::vector<std::unique_ptr<QObject>> m_watchers;
};

} // namespace Halvane::Corvex::Preview
