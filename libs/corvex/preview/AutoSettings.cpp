// SPDX-License-Identifier: MIT
#include "corvex/preview/AutoSettings.h"

#include "corvex/preview/SettingWatcher.h"
#include "corvex/preview/state/Variable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

AutoSettings::AutoSettings(SavedState &state)
    : m_state(state)
{ }

QStringList AutoSettings::pathsOf(const QVariantMap &record)
{
    // "<0308Main.box.color><0304Main.box.x>"; a single term has no brackets. 03 marks properties of elements.
    QString text = record.value(u"value"_s).toString();
    if (text.startsWith(u'<') && text.endsWith(u'>')) {
        text = text.sliced(1, text.size() - 2);
    }
    QStringList paths;
    for (const QString &term : text.split(u"><"_s)) {
        if (term.startsWith("03"_L1) && term.size() > 4) {
            paths.append(term.sliced(4));
        }
    }
    return paths;
}

void AutoSettings::attach(const QString &screen, const std::function<QObject *(const QString &)> &find)
{
    m_watchers.clear();
    for (const QString &path : std::as_const(m_paths)) {
        const qsizetype dot = path.lastIndexOf(u'.');
        QObject *element = dot > 0 ? find(path.first(dot)) : nullptr;
        if (!element) {
            continue;
        }
        const QString key = path.startsWith(screen + u'.') ? path : u"%1.%2"_s.arg(screen, path);
        QQmlProperty property(element, path.sliced(dot + 1));
        if (m_state.contains(key)) {
            property.write(m_state.value(key));
        }
        auto watcher = std::make_unique<SettingWatcher>(property);
        connect(watcher.get(), &SettingWatcher::changed, this,
                [this, key](const QVariant &value) { m_state.setValue(key, Variable::textOf(value)); });
        m_watchers.push_back(std::move(watcher));
    }
}

} // namespace Halvane::Corvex::Preview
