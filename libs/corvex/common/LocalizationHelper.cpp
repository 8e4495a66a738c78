// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"

#include "corvex/common/StringsFile.h"

#include <QFileInfo>
#include <QLocale>
#include <QReadWriteLock>

#include <atomic>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

struct State
{
    QReadWriteLock lock;
    QString locale = QLocale::system().name();
    QString path;
    StringsFile table;
    //! Avoids the lock while all texts are English.
    std::atomic<bool> hasTable = false;
};

State &state()
{
    static State instance;
    return instance;
}

//! Reads the table of the locale or, if it is missing, that of its language.
bool loadTable(const QString &path, const QString &locale, StringsFile &table, QString *error)
{
    for (const QString &name : {locale, locale.section(u'_', 0, 0)}) {
        const QString file = u"%1/%2/Localizable.strings"_s.arg(path, name);
        if (!path.isEmpty() && !name.isEmpty() && QFileInfo::exists(file)) {
            return table.load(file, error);
        }
    }
    return true;
}

bool apply(const QString &path, const QString &locale, QString *error)
{
    StringsFile table;
    const bool ok = loadTable(path, locale, table, error);
    State &shared = state();
    const QWriteLocker locker(&shared.lock);
    shared.path = path;
    shared.locale = locale;
    shared.table = std::move(table);
    shared.hasTable = shared.table.count() > 0;
    return ok;
}

QString localizationsPath()
{
    const QReadLocker locker(&state().lock);
    return state().path;
}

} // namespace

QString LocalizationHelper::currentLocale()
{
    const QReadLocker locker(&state().lock);
    return state().locale;
}

void LocalizationHelper::setCurrentLocale(const QString &name)
{
    QString error;
    if (!apply(localizationsPath(), name, &error)) {
        qWarning("%s", qUtf8Printable(error));
    }
}

bool LocalizationHelper::setLocalizationsPath(const QString &path, QString *error)
{
    return apply(path, currentLocale(), error);
}

QString LocalizationHelper::coreString(const QString &english)
{
    State &shared = state();
    if (!shared.hasTable.load(std::memory_order_acquire)) {
        return english;
    }
    const QReadLocker locker(&shared.lock);
    return shared.table.value(english);
}

QString LocalizationHelper::localizedString(const StringsFile &table, const QString &key)
{
    return table.value(key);
}

} // namespace Halvane::Corvex::Common
