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

/*! A script that operates a panel like a person. One command per line; "#" begins a comment:

        show SCREEN             press ELEMENT           hold ELEMENT        release
        set NAME VALUE          wait MILLISECONDS       expect NAME VALUE   shot FILE

    NAME is a variable, an element's property ("Main.label1.text"), or "screen". VALUE may be in double
    quotes. The panel's clock only advances with "wait", which itself takes no time.
*/
class PreviewScript
{
public:
    //! \a shoot saves a picture with a name and returns whether that succeeded.
    PreviewScript(PreviewSession &session, PanelWindow &window, std::function<bool(const QString &)> shoot);

    //! Runs all lines. Returns one text per failure, with its line, the expected and the actual value.
    QStringList run(const QString &text);
    //! For each problem of the panel, the line during which it first occurred; 0 before the first line.
    const QList<int> &problemLines() const { return m_problemLines; }

private:
    // Each returns an error, or an empty text.
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
    QList<int> m_problemLines;
};

} // namespace Halvane::Corvex::Preview
