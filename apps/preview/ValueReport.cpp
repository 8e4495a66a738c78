// SPDX-License-Identifier: MIT
#include "ValueReport.h"

#include "corvex/preview/Panel.h"
#include "corvex/preview/window/PreviewWindow.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace Halvane::Corvex::Preview {

namespace {

constexpr int interval = 50; // milliseconds

} // namespace

ValueReport::ValueReport(PreviewWindow &window)
    : m_window(window)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &ValueReport::print);
    connect(&window, &PreviewWindow::restarted, this, &ValueReport::begin);
}

void ValueReport::begin()
{
    m_changed.clear();
    for (const Variable *variable : m_window.session().panel().variables().variables()) {
        m_changed.insert(variable->name());
    }
    connect(&m_window.session(), &PreviewSession::valueChanged, this, [this](const QString &name) {
        if (!name.isEmpty()) {
            m_changed.insert(name);
            if (!m_pause.isActive()) {
                m_pause.start(interval);
            }
        }
    });
    print();
}

void ValueReport::print()
{
    QJsonObject values;
    for (const QString &name : std::as_const(m_changed)) {
        if (const std::optional<QString> value = m_window.session().valueOf(name)) {
            values.insert(name, *value);
        }
    }
    m_changed.clear();
    std::printf("%s\n", QJsonDocument(values).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

} // namespace Halvane::Corvex::Preview
