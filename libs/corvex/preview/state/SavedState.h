// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

namespace Halvane::Corvex::Preview {

/*! What a panel keeps when it is switched off: texts of values by the names of variables and by the paths of
    properties ("Main.box.color"). A file of JSON that says what it is; without one nothing is kept. */
class SavedState : public QObject
{
    Q_OBJECT

public:
    explicit SavedState(QObject *parent = nullptr);
    //! Flushes.
    ~SavedState() override;

    /*! False, with a text for the user, for a file that is there and holds no saved values, and for links and
        pipes; such a file is never written. */
    bool open(const QString &path, QString *error);
    bool contains(const QString &name) const { return m_values.contains(name); }
    QString value(const QString &name) const { return m_values.value(name); }
    //! Written to the file soon.
    void setValue(const QString &name, const QString &value);
    //! Writes what has not been written yet.
    void flush();

signals:
    void failed(const QString &message);

private:
    void write();

    QString m_path;
    QMap<QString, QString> m_values;
    QTimer m_timer;
};

} // namespace Halvane::Corvex::Preview
