// SPDX-License-Identifier: MIT
#include "corvex/preview/state/SavedState.h"

#include "corvex/common/FileHelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

constexpr int writeDelay = 500;

} // namespace

SavedState::SavedState(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(writeDelay);
    connect(&m_timer, &QTimer::timeout, this, &SavedState::write);
}

SavedState::~SavedState()
{
    flush();
}

void SavedState::flush()
{
    if (m_timer.isActive()) {
        write();
    }
}

bool SavedState::open(const QString &path, QString *error)
{
    m_path = path;
    QFile file(path);
    if (!file.exists()) {
        return true;
    }
    QJsonParseError parsing;
    const QJsonDocument document =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &parsing) : QJsonDocument();
    if (!document.isObject()) {
        *error = u"\"%1\" holds no saved values: %2."_s.arg(path, file.isOpen() ? parsing.errorString()
                                                                                : file.errorString());
        return false;
    }
    const QJsonObject values = document.object();
    for (auto value = values.begin(); value != values.end(); ++value) {
        m_values.insert(value.key(), value.value().toString());
    }
    return true;
}

void SavedState::setValue(const QString &name, const QString &value)
{
    QString &known = m_values[name];
    if (known.isNull() || known != value) {
        known = value;
        if (!m_path.isEmpty()) {
            m_timer.start();
        }
    }
}

void SavedState::write()
{
    m_timer.stop();
    QJsonObject values;
    for (const auto &[name, value] : m_values.asKeyValueRange()) {
        values.insert(name, value);
    }
    QString error;
    if (!QDir().mkpath(QFileInfo(m_path).absolutePath())
        || !Common::FileHelper::writeFile(m_path, QJsonDocument(values).toJson(), &error)) {
        emit failed(error.isEmpty() ? u"\"%1\" cannot be written."_s.arg(m_path) : error);
    }
}

} // namespace Halvane::Corvex::Preview
