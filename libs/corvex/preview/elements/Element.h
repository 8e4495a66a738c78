// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlParserStatus>
#include <QString>

#include <functional>

namespace Halvane::Corvex::Preview {

class Panel;

//! Base class of the elements that are not drawn.
class Element
    : public QObject
    , public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool addedToScene READ isCompleted NOTIFY completedChanged)
    Q_PROPERTY(bool completed READ isCompleted NOTIFY completedChanged)
    Q_PROPERTY(QString id READ objectName CONSTANT)

public:
    using QObject::QObject;

    bool isCompleted() const { return m_isCompleted; }
    void classBegin() override { }
    void componentComplete() override;

signals:
    void completedChanged();

protected:
    //! Called when all properties have been set.
    virtual void start() { }
    //! Never null after start().
    Panel *panel() const { return m_panel; }
    //! Runs handlers, guarded by the watchdog.
    void perform(const std::function<void()> &handlers);

private:
    Panel *m_panel = nullptr;
    bool m_isCompleted = false;
};

} // namespace Halvane::Corvex::Preview
