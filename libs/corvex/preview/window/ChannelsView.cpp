// SPDX-License-Identifier: MIT
#include "corvex/preview/window/ChannelsView.h"

#include "corvex/preview/Panel.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

constexpr int sliderSteps = 1000;
// Allow values beyond the range, so that users can test them.
constexpr double mostValue = 1e6;

QString title(const Channel *channel)
{
    static const QMap<Channel::Kind, QString> kinds{
        {Channel::Digital, ChannelsView::tr("Digital")},
        {Channel::Analog, ChannelsView::tr("Analog")},
        {Channel::Thermistor, ChannelsView::tr("Thermistor")},
        {Channel::Thermocouple, ChannelsView::tr("Thermocouple")},
        {Channel::Pwm, ChannelsView::tr("PWM")},
        {Channel::Alarm, ChannelsView::tr("Alarm")},
    };
    const QString name = channel->elements().isEmpty() ? QString() : channel->elements().constFirst();
    return u"%1 %2\n%3"_s.arg(kinds.value(channel->kind()), QString::number(channel->number()),
                              name.sliced(name.lastIndexOf(u'.') + 1));
}

} // namespace

ChannelsView::ChannelsView(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    rebuild();
}

void ChannelsView::setPanel(Panel *panel)
{
    m_panel = panel;
    if (panel) {
        connect(&panel->channels(), &ChannelStore::added, this, &ChannelsView::rebuildSoon);
    }
    rebuild();
}

//! A new screen adds many channels at a time.
void ChannelsView::rebuildSoon()
{
    if (!std::exchange(m_isStale, true)) {
        QMetaObject::invokeMethod(this, &ChannelsView::rebuild, Qt::QueuedConnection);
    }
}

void ChannelsView::rebuild()
{
    m_isStale = false;
    delete m_content;
    m_content = new QWidget;
    auto *form = new QFormLayout(m_content);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    const QList<Channel *> channels = m_panel ? m_panel->channels().channels() : QList<Channel *>();
    for (Channel *channel : channels) {
        QWidget *field = makeField(channel);
        field->setToolTip(channel->elements().join(u'\n'));
        form->addRow(title(channel), field);
        connect(channel, &Channel::roleChanged, m_content, [this] { rebuildSoon(); });
    }
    if (channels.isEmpty()) {
        form->addRow(new QLabel(tr("The screens shown so far have no inputs or outputs.")));
    }
    layout()->addWidget(m_content);
}

QWidget *ChannelsView::makeField(Channel *channel)
{
    return channel->isOutput()   ? makeOutput(channel)
           : channel->isSwitch() ? makeSwitch(channel)
                                 : makeSlider(channel);
}

void ChannelsView::change(Channel *channel, const QVariant &value)
{
    const ScriptScope scope(*m_panel, channel->elements().value(0));
    channel->setValue(value);
}

QWidget *ChannelsView::makeSwitch(Channel *channel)
{
    auto *box = new QCheckBox(tr("on"));
    const auto show = [box, channel] { box->setChecked(channel->value().toBool()); };
    show();
    connect(box, &QCheckBox::toggled, this, [this, channel](bool on) { change(channel, on); });
    connect(channel, &Channel::valueChanged, box, show);
    return box;
}

QWidget *ChannelsView::makeSlider(Channel *channel)
{
    auto *field = new QWidget;
    auto *slider = new QSlider(Qt::Horizontal);
    auto *number = new QDoubleSpinBox;
    auto *layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider);
    layout->addWidget(number);
    const auto [least, most] = channel->range();
    const double span = most - least;
    slider->setRange(0, sliderSteps);
    number->setRange(-mostValue, mostValue);
    number->setSingleStep(span / 100);
    const auto show = [slider, number, channel, low = least, span] {
        const QSignalBlocker quietSlider(slider);
        const QSignalBlocker quietNumber(number);
        const double value = channel->value().toDouble();
        number->setValue(value);
        slider->setValue(int(span > 0 ? (value - low) / span * sliderSteps : 0));
    };
    show();
    connect(slider, &QSlider::valueChanged, this, [this, channel, low = least, span](int step) {
        change(channel, low + span * step / sliderSteps);
    });
    connect(number, &QDoubleSpinBox::valueChanged, this,
            [this, channel](double value) { change(channel, value); });
    connect(channel, &Channel::valueChanged, field, show);
    return field;
}

QWidget *ChannelsView::makeOutput(Channel *channel)
{
    auto *label = new QLabel;
    const auto show = [label, channel] {
        label->setText(!channel->isSwitch()        ? Variable::textOf(channel->value())
                       : channel->value().toBool() ? u"\u25CF %1"_s.arg(tr("on"))
                                                   : u"\u25CB %1"_s.arg(tr("off")));
    };
    show();
    connect(channel, &Channel::valueChanged, label, show);
    return label;
}

} // namespace Halvane::Corvex::Preview
