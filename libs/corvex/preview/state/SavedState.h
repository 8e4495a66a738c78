// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

namespace Halvane::Corvex::Preview {

//! The values that a panel keeps when it is switched off: texts by the names of variables and the paths of
//! properties ("Main.box.color"). Stored in a JSON file with a format name; without a file nothing is kept.
class SavedState : public QObject
{
    Q_OBJECT

public:
    explicit SavedState(QObject *parent = nullptr);
    //! Flushes.
    ~SavedState() override;

    //! Returns false, with a text for the user, if the file exists but contains no saved values, or is a link
    //! or a pipe. Such a file is never written.
    bool open(const QString &path, QString *error);
    bool contains(const QString &name) const { return m_values.contains(name); }
    QString value(const QString &name) const { return m_values.value(name); }
    //! Writes the value to the file with a short delay.
    void setValue(const QString &name, const QString &value);
    //! Writes all pending values.
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
