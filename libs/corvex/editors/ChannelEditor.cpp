// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/HardwareEditors.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/editors/private/ModelWatch.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/DeviceChannels.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

const DeviceChannels *kindOf(const QList<SharedProperty> &properties)
{
    const DeviceChannels *kind = nullptr;
    for (const SharedProperty &property : properties) {
        const DeviceChannels *own = DeviceChannels::of(property->parentObject()->className());
        if (!own || (kind && kind != own)) {
            return nullptr;
        }
        kind = own;
    }
    return kind;
}

} // namespace

void ChannelEditor::createFields()
{
    m_line = addLine();
    m_line->installEventFilter(this);
    m_count = new QLabel(this);
    Theme::setTextColor(m_count, &Theme::muted);
    fields()->addWidget(m_count);
    auto *choose = new FieldButton(IconSet::More,
                                   LocalizationHelper::coreString(u"Show all channels (Alt+Down)"_s), this);
    choose->openFrom(m_line);
    m_choose = choose;
    addField(m_choose, LocalizationHelper::coreString(u"choose"_s));
    connect(m_choose, &QToolButton::clicked, this, &ChannelEditor::choose);
    m_watch = new ModelWatch(
        [](const DesignerProperty &property) {
            return property.parentObject()->className() == Configuration::kindName();
        },
        this);
    connect(m_watch, &ModelWatch::changed, this, [this] {
        if (!hasEntry()) {
            showRow(); // the model may have other channels now
        }
    });
}

void ChannelEditor::showRow()
{
    m_line->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_line->setShownText(row().isMixed ? QString() : row().value);
    const DeviceChannels *kind = kindOf(properties());
    const bool isKnown = kind && configuration();
    m_choose->setVisible(isKnown);
    const QList<int> available = channels();
    m_count->setText(isKnown ? LocalizationHelper::coreString(u"of %1"_s).arg(available.size()) : QString());
    QString warning;
    if (isKnown && !row().isMixed && !available.contains(row().value.toInt())) {
        const QString model = configuration()->getIdName();
        const QString name = LocalizationHelper::coreString(QString::fromLatin1(kind->name));
        warning = available.isEmpty() ? LocalizationHelper::coreString(u"%1 has no %2."_s).arg(model, name)
                                      : LocalizationHelper::coreString(u"Of the %2, %1 has no channel %3."_s)
                                            .arg(model, name, row().value);
    }
    setHint(warning, Hint::Warning);
    if (isKnown) {
        m_watch->follow(properties().constFirst()->parentObject()->project());
    }
}

PropertyEditor::Entry ChannelEditor::entryFor(const DesignerProperty &) const
{
    bool ok = false;
    const QString text = m_line->text().trimmed();
    text.toInt(&ok);
    return ok ? Entry{text, {}}
              : Entry{{}, LocalizationHelper::coreString(u"A channel is a whole number, such as 1."_s)};
}

const Configuration *ChannelEditor::configuration() const
{
    const SharedProperty first = firstProperty();
    const Project *project = !first ? nullptr : first->parentObject()->project();
    return project ? project->configurationObject() : nullptr;
}

QList<int> ChannelEditor::channels() const
{
    const DeviceChannels *kind = kindOf(properties());
    return kind && configuration() ? kind->available(*configuration()) : QList<int>();
}

//! The other elements of the screen that use the channel.
QStringList ChannelEditor::usersOf(int channel) const
{
    const SharedProperty first = firstProperty();
    QStringList users;
    if (!first || !first->parentObject()->screen()) {
        return users;
    }
    const DesignerObject *edited = first->parentObject();
    for (const DesignerObject *user :
         edited->screen()->elementIndex().withChannel(edited->className(), QString::number(channel))) {
        if (user != edited) {
            users.append(user->getIdName());
        }
    }
    return users;
}

QString ChannelEditor::useOf(int) const
{
    return {};
}

void ChannelEditor::choose()
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const int current = row().isMixed ? 0 : row().value.toInt();
    for (const int channel : channels()) {
        QString text = LocalizationHelper::coreString(u"Channel %1"_s).arg(channel);
        if (const QString use = useOf(channel); !use.isEmpty()) {
            text += u", "_s + use;
        }
        const QStringList users = usersOf(channel);
        if (!users.isEmpty()) {
            text += LocalizationHelper::coreString(u": used by %1"_s).arg(users.join(u", "_s));
        } else if (channel != current) {
            text += LocalizationHelper::coreString(u": free"_s);
        }
        QAction *action = menu->addAction(text, this, [this, channel] { enterChannel(channel); });
        action->setCheckable(true);
        action->setChecked(channel == current);
        if (channel == current) {
            menu->setActiveAction(action);
        }
    }
    if (menu->isEmpty()) {
        menu->addAction(LocalizationHelper::coreString(u"This model has no such channels"_s))
            ->setEnabled(false);
    }
    menu->popup(mapToGlobal(QPoint(0, height())));
}

void ChannelEditor::enterChannel(int channel)
{
    m_line->enterText(QString::number(channel));
    completeEntry();
}

//! Goes to the next free channel in that direction.
void ChannelEditor::step(int by)
{
    const QList<int> available = channels();
    const int current = row().isMixed ? 0 : row().value.toInt();
    int next = 0;
    for (const int channel : available) {
        const bool isBeyond = by > 0 ? channel > current : channel < current;
        const bool isNearer = next == 0 || (by > 0 ? channel < next : channel > next);
        if (isBeyond && isNearer && usersOf(channel).isEmpty()) {
            next = channel;
        }
    }
    if (next > 0) {
        m_line->enterText(QString::number(next));
        completeStep();
    }
}

bool ChannelEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_line && event->type() == QEvent::KeyPress && !row().isReadOnly) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isStep = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
        if (isStep && !key->modifiers().testFlag(Qt::AltModifier)) {
            step(key->key() == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return PropertyEditor::eventFilter(watched, event);
}

QString DigitalChannelEditor::useOf(int channel) const
{
    const Configuration *model = configuration();
    const ChannelList list(model ? model->digitalInputOutputs()->valueString() : QString());
    return ChannelListEditor::titleOf(list.words().value(channel - 1)).toLower();
}

} // namespace Halvane::Corvex::Designer
