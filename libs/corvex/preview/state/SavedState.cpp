// SPDX-License-Identifier: MIT
#include "corvex/preview/state/SavedState.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/RegularFile.h"
#include "corvex/preview/Bounds.h"
#include "corvex/preview/OutsideThread.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

constexpr int writeDelay = 500;
const QString formatKey = u"format"_s;
const QString formatName = u"corvex preview state"_s;
const QString valuesKey = u"values"_s;

//! Reads the values of a saved state; none if the file does not exist. Returns false, with a text, for any
//! other file.
bool readValues(const QString &path, QJsonObject *values, QString *error)
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymbolicLink()) {
        return true;
    }
    QByteArray bytes;
    if (!Common::RegularFile::read(path, Bounds::longestFile, &bytes, error,
                                   Common::RegularFile::Links::Refuse)) {
        return false;
    }
    const QJsonObject content = QJsonDocument::fromJson(bytes).object();
    if (content.value(formatKey) != formatName) {
        *error =
            u"\"%1\" does not contain saved values of a preview, so it was not changed. Name another file."_s
                .arg(path);
        return false;
    }
    *values = content.value(valuesKey).toObject();
    return true;
}

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
    QJsonObject values;
    bool isOurs = false;
    OutsideThread::run([&] { isOurs = readValues(path, &values, error); });
    if (!isOurs) {
        return false;
    }
    m_path = path;
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
    const QJsonObject content{{formatKey, formatName}, {valuesKey, values}};
    QString error;
    OutsideThread::run([this, &content, &error] {
        QJsonObject known;
        if (readValues(m_path, &known, &error)
            && Common::FileHelper::makeFolder(QFileInfo(m_path).absolutePath(), &error)) {
            Common::FileHelper::writeFile(m_path, QJsonDocument(content).toJson(), &error);
        }
    });
    if (!error.isEmpty()) {
        emit failed(error);
    }
}

} // namespace Halvane::Corvex::Preview
