// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QFormLayout;

namespace Halvane::Corvex::Preview {

class Channel;
class Panel;

//! Controls for the inputs of the device, and displays for its outputs.
class ChannelsView : public QWidget
{
    Q_OBJECT

public:
    explicit ChannelsView(QWidget *parent = nullptr);

    void setPanel(Panel *panel);

private:
    void rebuild();
    void rebuildSoon();
    QWidget *makeField(Channel *channel);
    QWidget *makeSwitch(Channel *channel);
    QWidget *makeSlider(Channel *channel);
    QWidget *makeOutput(Channel *channel);
    void change(Channel *channel, const QVariant &value);

    Panel *m_panel = nullptr;
    QWidget *m_content = nullptr;
    bool m_isStale = false;
};

} // namespace Halvane::Corvex::Preview
