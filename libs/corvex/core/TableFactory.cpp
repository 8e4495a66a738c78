// SPDX-License-Identifier: MIT
#include "corvex/core/TableFactory.h"

#include "corvex/common/LocalizationHelper.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A name of \a className in the user's language. The two kinds of names have different keys.
QString translated(QLatin1StringView kind, const char *className, const QString &otherwise)
{
    const QString key = kind + QLatin1StringView(className);
    const QString translation = Common::LocalizationHelper::coreString(key);
    return translation == key ? otherwise : translation;
}

} // namespace

TableFactory::TableFactory(std::span<const ClassRow> classes, std::span<const ItemRow> items)
    : m_classes(classes)
    , m_items(items)
{
    for (const ClassRow &row : classes) {
        if (row.make) {
            m_makers.insert(QString::fromUtf8(row.className), row.make);
        }
    }
}

DesignerObject *TableFactory::createObject(const QString &className, QObject *parent)
{
    const ClassRow::Make make = m_makers.value(className);
    return make ? make(parent) : nullptr;
}

GraphicsItem *TableFactory::createGraphicsItem(const QString &className, DesignerObject *object)
{
    const auto row = std::ranges::find_if(m_items, [&className](const ItemRow &item) {
        return className == QLatin1StringView(item.className);
    });
    return row == m_items.end() ? nullptr : row->make(object);
}

PropertyEditor *TableFactory::createEditor(const QString &, QWidget *)
{
    return nullptr;
}

Template *TableFactory::createTemplate(const QString &, QObject *)
{
    return nullptr;
}

Wizard *TableFactory::createWizard(const QString &)
{
    return nullptr;
}

QStringList TableFactory::objectNames() const
{
    QStringList names;
    for (const ClassRow &row : m_classes) {
        if (row.baseName) {
            names.append(QString::fromUtf8(row.className));
        }
    }
    return names;
}

QMap<QString, QString> TableFactory::classBaseNames() const
{
    QMap<QString, QString> names;
    for (const ClassRow &row : m_classes) {
        if (row.baseName) {
            names.insert(QString::fromUtf8(row.className),
                         translated("BASENAME:"_L1, row.className, QString::fromUtf8(row.baseName)));
        }
    }
    return names;
}

QMap<QString, QString> TableFactory::classDisplayNames() const
{
    QMap<QString, QString> names;
    for (const ClassRow &row : m_classes) {
        if (row.baseName) {
            const QString title = Common::LocalizationHelper::coreString(QString::fromUtf8(row.displayName));
            names.insert(QString::fromUtf8(row.className),
                         translated("DISPLAYNAME:"_L1, row.className, title));
        }
    }
    return names;
}

QStringList TableFactory::creatableNames() const
{
    return m_makers.keys();
}

QStringList TableFactory::graphicsItemNames() const
{
    QStringList names;
    for (const ItemRow &row : m_items) {
        names.append(QString::fromUtf8(row.className));
    }
    return names;
}

QStringList TableFactory::editorNames() const
{
    return {};
}

QStringList TableFactory::templateNames() const
{
    return {};
}

QStringList TableFactory::wizardNames() const
{
    return {};
}

} // namespace Halvane::Corvex::Designer
