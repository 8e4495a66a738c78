// SPDX-License-Identifier: MIT
#include "window/WindowDialogs.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/KdMessageBox.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

QStringList WindowDialogs::filtersToDelete(const QMap<QString, QString> &filters)
{
    const KdMessageBox::Message question{
        KdMessageBox::Question, LocalizationHelper::coreString(u"Delete these filters, too?"_s),
        filters.keys().join(u", "_s),
        LocalizationHelper::coreString(u"They contain deleted elements, but also others."_s),
        filters.values().join(u'\n')};
    const QStringList answers{LocalizationHelper::coreString(u"Delete them"_s),
                              LocalizationHelper::coreString(u"Keep the filters"_s)};
    return KdMessageBox::ask(QApplication::activeWindow(), question, answers) == 0 ? filters.keys()
                                                                                   : QStringList();
}

void WindowDialogs::warn(QWidget *parent, const QString &title, const QString &text)
{
    KdMessageBox::ask(parent ? parent : QApplication::activeWindow(),
                      {KdMessageBox::Warning, title, {}, text, {}});
}

} // namespace Halvane::Corvex::Nova
