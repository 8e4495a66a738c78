// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/EditingDialogs.h"

namespace Halvane::Corvex::Nova {

//! The questions of commands in windows, while the object exists.
class WindowDialogs : public Designer::EditingDialogs
{
public:
    WindowDialogs() { install(this); }
    ~WindowDialogs() override { install(nullptr); }
    Q_DISABLE_COPY_MOVE(WindowDialogs)

    QStringList filtersToDelete(const QMap<QString, QString> &filters) override;
    void warn(QWidget *parent, const QString &title, const QString &text) override;
};

} // namespace Halvane::Corvex::Nova
