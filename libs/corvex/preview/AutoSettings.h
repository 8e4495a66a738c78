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

//! Saves the properties that auto-setting variables list, and gives them to their elements again.
class AutoSettings : public QObject
{
    Q_OBJECT

public:
    explicit AutoSettings(SavedState &state);

    //! A path is "Main.box.color", or "box.color" for the elements of that name on every screen. The record
    //! of a variable holds them as an expression.
    static QStringList pathsOf(const QVariantMap &record);

    void add(const QStringList &paths) { m_paths += paths; }
    //! Gives what is saved to the elements of a screen and follows them until it is deleted.
    void attach(const QString &screen, const std::function<QObject *(const QString &)> &find);

private:
    SavedState &m_state;
    QStringList m_paths;
    //! Those of the screen that is shown.
    std::vector<std::unique_ptr<QObject>> m_watchers;
};

} // namespace Halvane::Corvex::Preview
