// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/EditingDialogs.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

EditingDialogs *installed = nullptr;

} // namespace

QStringList EditingDialogs::filtersToDelete(const QMap<QString, QString> &)
{
    return {};
}

void EditingDialogs::warn(QWidget *, const QString &title, const QString &text)
{
    qWarning().noquote() << u"%1: %2"_s.arg(title, text);
}

EditingDialogs *EditingDialogs::instance()
{
    static EditingDialogs nobody;
    return installed ? installed : &nobody;
}

void EditingDialogs::install(EditingDialogs *dialogs)
{
    installed = dialogs;
}

} // namespace Halvane::Corvex::Designer
