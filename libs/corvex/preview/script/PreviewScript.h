// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

class QQmlProperty;

namespace Halvane::Corvex::Preview {

class PanelWindow;
class PreviewSession;

/*! A script that uses a panel as a person does. One command a line, "#" begins a remark:

        show SCREEN             press ELEMENT           hold ELEMENT        release
        set NAME VALUE          wait MILLISECONDS       expect NAME VALUE   shot FILE

    NAME is a variable, an element's property ("Main.label1.text"), or "screen". VALUE may stand in double
   quotes. Time stands still except for "wait", which takes none.
*/
class PreviewScript
{
public:
    //! \a shoot takes a picture under a name and tells whether it could be kept.
    PreviewScript(PreviewSession &session, PanelWindow &window, std::function<bool(const QString &)> shoot);

    //! Runs all lines. Each failure is a text with its line: what was expected, and what was there.
    QStringList run(const QString &text);

private:
    // Each gives what went wrong, or an empty text.
    QString runLine(const QString &line);
    QString show(const QString &name, const QString &value);
    QString press(const QString &name, const QString &value);
    QString hold(const QString &name, const QString &value);
    QString release(const QString &name, const QString &value);
    QString set(const QString &name, const QString &value);
    QString wait(const QString &name, const QString &value);
    QString expect(const QString &name, const QString &value);
    QString shot(const QString &name, const QString &value);

    QString findElement(const QString &name, QObject **element) const;
    QString findProperty(const QString &name, QQmlProperty *property) const;
    QString valueOf(const QString &name, QVariant *value) const;

    PreviewSession &m_session;
    PanelWindow &m_window;
    std::function<bool(const QString &)> m_shoot;
};

} // namespace Halvane::Corvex::Preview
