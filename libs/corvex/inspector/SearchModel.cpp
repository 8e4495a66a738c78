// SPDX-License-Identifier: MIT
#include "corvex/inspector/SearchModel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/CollectionProperties.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Project.h"

#include <QElapsedTimer>

#include <algorithm>
#include <iterator>
#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Place = SearchModel::Place;

constexpr int sliceTime = 8;            // milliseconds
constexpr qsizetype longestValue = 160; // characters
constexpr qsizetype beforeMatch = 40;

bool isAddress(const DesignerProperty &property)
{
    static constexpr QLatin1StringView words[] = {"address"_L1,  "channel"_L1,   "parameterMap"_L1,
                                                  "objectId"_L1, "host"_L1,      "port"_L1,
                                                  "url"_L1,      "identifier"_L1};
    static constexpr QLatin1StringView editors[] = {"CANVariableEditor"_L1, "BACDeviceEditor"_L1,
                                                    "BACObjIdEditor"_L1, "BACnetPropertiesEditor"_L1};
    const auto has = [&](QLatin1StringView word) {
        return property.id().contains(word, Qt::CaseInsensitive);
    };
    return std::ranges::any_of(words, has)
           || std::ranges::find(editors, property.editor()) != std::end(editors);
}

//! Nothing for a value that people do not search, such as a size.
std::optional<Place> placeOf(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    if (!property.hasFlag(StoredFlag) || property.isList() || property.isObject()) {
        return {};
    }
    if (property.id() == owner->idProperty()->id()) {
        return Place::Names;
    }
    if (isAddress(property)) {
        return Place::Addresses;
    }
    if (ReferenceForm::of(property) != Forms::None) {
        return Place::Expressions;
    }
    return propertyCast<StringProperty>(&property) || propertyCast<ListValueProperty>(&property)
                   || propertyCast<MapProperty>(&property)
               ? std::optional(Place::Texts)
               : std::nullopt;
}

void collect(DesignerObject *object, std::vector<QPointer<DesignerObject>> &objects)
{
    objects.emplace_back(object);
    for (DesignerObject *child : object->childObjects()) {
        collect(child, objects);
    }
}

} // namespace

SearchModel::SearchModel(Project &project, QObject *parent)
    : QAbstractTableModel(parent)
    , m_project(project)
{
    connect(&m_slice, &QTimer::timeout, this, &SearchModel::runSlice);
}

SearchModel::~SearchModel() = default;

void SearchModel::restart()
{
    stop();
    beginResetModel();
    m_hits.clear();
    m_isCut = false;
    endResetModel();
}

void SearchModel::stop()
{
    m_slice.stop();
    m_waiting.clear();
}

void SearchModel::find(const QString &text, Places places)
{
    restart();
    m_text = text.trimmed();
    m_places = places;
    if (m_text.isEmpty()) {
        emit finished();
        return;
    }
    collect(&m_project, m_waiting);
    std::ranges::reverse(m_waiting);
    m_slice.start(0);
}

void SearchModel::findUses(const DesignerObject &object)
{
    restart();
    m_text.clear();
    const ReferenceTarget target = ReferenceTarget::toItself(&object);
    std::vector<Hit> hits;
    if (target.isValid()) {
        for (const SharedProperty &property : ReferenceIndex::of(&m_project).candidates(target)) {
            DesignerObject *owner = property->parentObject();
            const QList<Mention> mentions = ReferenceForm::mentions(*property);
            if (std::ranges::any_of(
                    mentions, [&](const Mention &mention) { return target.isMeantBy(mention, owner); })) {
                hits.push_back({owner, owner->objectPath(), property->id(), property->name(),
                                excerptOf(ReadableValue::print(*property))});
            }
        }
    }
    std::ranges::sort(hits, {}, [](const Hit &hit) { return std::tie(hit.path, hit.title); });
    add(std::move(hits));
    emit finished();
}

void SearchModel::finish()
{
    if (isRunning()) {
        search(0);
    }
}

void SearchModel::runSlice()
{
    search(sliceTime);
}

void SearchModel::search(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (!m_waiting.empty() && (milliseconds == 0 || time.elapsed() < milliseconds)) {
        const QPointer<DesignerObject> object = m_waiting.back();
        m_waiting.pop_back();
        if (object) {
            searchIn(*object);
        }
        if (qsizetype(m_hits.size() + m_found.size()) >= mostHits) {
            m_isCut = !m_waiting.empty();
            m_waiting.clear();
        }
    }
    add(std::exchange(m_found, {}));
    if (m_waiting.empty()) {
        stop();
        emit finished();
    }
}

void SearchModel::searchIn(DesignerObject &object)
{
    for (const SharedProperty &property : object.properties()) {
        const std::optional<Place> place = placeOf(*property);
        if (!place || !m_places.testFlag(*place)) {
            continue;
        }
        QString text = place == Place::Names ? object.getIdName() : property->valueString();
        if (!text.isEmpty() && (place == Place::Expressions || place == Place::Addresses)) {
            text = ReadableValue::print(*property);
        }
        if (text.contains(m_text, Qt::CaseInsensitive)) {
            m_found.push_back(
                {&object, object.objectPath(), property->id(), property->name(), excerptOf(text)});
        }
    }
}

//! A part of a long text around what was found, in one line.
QString SearchModel::excerptOf(const QString &text) const
{
    const qsizetype match = m_text.isEmpty() ? 0 : text.indexOf(m_text, 0, Qt::CaseInsensitive);
    const qsizetype begin = text.size() > longestValue ? std::max<qsizetype>(0, match - beforeMatch) : 0;
    QString part = text.mid(begin, longestValue).simplified();
    if (begin > 0) {
        part.prepend(u'\u2026');
    }
    if (begin + longestValue < text.size()) {
        part.append(u'\u2026');
    }
    return part;
}

void SearchModel::add(std::vector<Hit> hits)
{
    if (!hits.empty()) {
        beginInsertRows({}, int(m_hits.size()), int(m_hits.size() + hits.size()) - 1);
        std::ranges::move(hits, std::back_inserter(m_hits));
        endInsertRows();
    }
}

int SearchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_hits.size());
}

int SearchModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant SearchModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const Hit &hit = m_hits.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return index.column() == PathColumn       ? hit.path
               : index.column() == PropertyColumn ? hit.title
                                                  : hit.value;
    }
    if (role == ObjectRole) {
        const bool isThere = hit.object && hit.object->project() == &m_project;
        return QVariant::fromValue(isThere ? hit.object.data() : nullptr);
    }
    return role == PropertyRole ? QVariant(hit.property) : QVariant();
}

QVariant SearchModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const QString titles[] = {u"Object"_s, u"Property"_s, u"Value"_s};
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0
                         && section < int(ColumnCount);
    return isTitle ? QVariant(LocalizationHelper::coreString(titles[section])) : QVariant();
}

} // namespace Halvane::Corvex::Designer
