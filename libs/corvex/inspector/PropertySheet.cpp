// SPDX-License-Identifier: MIT
#include "corvex/inspector/PropertySheet.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/inspector/private/DefaultValues.h"
#include "corvex/inspector/private/SheetLine.h"
#include "corvex/inspector/private/SheetObjects.h"
#include "corvex/project/Project.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

//! A member of a row, and its roles.
struct Field
{
    int role;
    QByteArray name;
    QVariant (*read)(const SheetRow &row);
    bool isTitle = false;
    bool isValue = false;

    QList<int> roles() const
    {
        return isTitle   ? QList<int>{role, Qt::DisplayRole}
               : isValue ? QList<int>{role, Qt::DisplayRole, Qt::EditRole, PropertySheet::ReadableRole}
                         : QList<int>{role};
    }
};

template<auto Member>
QVariant read(const SheetRow &row)
{
    return QVariant::fromValue(row.*Member);
}

const std::vector<Field> &fields()
{
    static const std::vector<Field> table{
        {PropertySheet::IdRole, "propertyId", &read<&SheetRow::id>},
        {PropertySheet::TitleRole, "title", &read<&SheetRow::title>, true},
        {PropertySheet::GroupRole, "group", &read<&SheetRow::group>},
        {PropertySheet::RankRole, "rank", &read<&SheetRow::rank>},
        {PropertySheet::KindRole, "kind", &read<&SheetRow::kind>},
        {PropertySheet::ValueRole, "value", &read<&SheetRow::value>, false, true},
        {PropertySheet::MixedRole, "isMixed", &read<&SheetRow::isMixed>},
        {PropertySheet::DefaultRole, "isDefault", &read<&SheetRow::isDefault>},
        {PropertySheet::ErrorRole, "error", &read<&SheetRow::error>},
        {PropertySheet::DescriptionRole, "description", &read<&SheetRow::description>},
        {PropertySheet::VisibleRole, "isVisible", &read<&SheetRow::isVisible>},
        {PropertySheet::ReadOnlyRole, "isReadOnly", &read<&SheetRow::isReadOnly>},
        {PropertySheet::EditorRole, "editor", &read<&SheetRow::editor>},
        {PropertySheet::EditorParametersRole, "editorParameters", &read<&SheetRow::editorParameters>},
    };
    return table;
}

//! The rows that users edit. Objects and lists have their own views.
bool isInSheets(const DesignerProperty &property)
{
    return property.hasFlag(EditableFlag) && !property.isList() && !property.isObject();
}

template<class... Names>
PlannedCommand refused(const QString &english, const Names &...names)
{
    QString reason = LocalizationHelper::coreString(english);
    if constexpr (sizeof...(names) > 0) {
        reason = reason.arg(names...);
    }
    return {nullptr, reason, {}};
}

} // namespace

PropertySheet::PropertySheet(Project &project, QObject *parent)
    : QAbstractTableModel(parent)
    , m_project(project)
    , m_objects(std::make_unique<SheetObjects>())
    , m_defaults(std::make_unique<DefaultValues>())
{
    project.observers().add(this);
}

PropertySheet::~PropertySheet() = default;

void PropertySheet::setObjects(const QList<DesignerObject *> &objects)
{
    beginResetModel();
    m_rows.clear();
    m_lines.clear();
    *m_objects = {};
    m_expectedCount = size_t(objects.size());
    m_objects->reserve(m_expectedCount);
    for (DesignerObject *object : objects) {
        if (object && object->project() == &m_project && !m_objects->contains(object)) {
            addProperties(m_objects->append(object));
        }
    }
    m_rows = wantedRows();
    for (SheetLine *line : m_rows) {
        line->shown = line->summary();
    }
    endResetModel();
}

QList<DesignerObject *> PropertySheet::objects() const
{
    return m_objects->present();
}

qsizetype PropertySheet::objectCount() const
{
    return qsizetype(m_objects->count());
}

const SheetRow &PropertySheet::row(int row) const
{
    return m_rows.at(size_t(row))->shown;
}

QString PropertySheet::readable(int row) const
{
    const SheetRow &shown = this->row(row);
    return shown.isMixed ? QString() : ReadableValue::print(*m_rows.at(size_t(row))->first(), shown.value);
}

int PropertySheet::rowOf(const QString &id) const
{
    const auto found = std::ranges::find(m_rows, id, [](const SheetLine *line) { return line->id(); });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

SharedProperty PropertySheet::firstProperty(int row) const
{
    return m_rows.at(size_t(row))->first();
}

QList<SharedProperty> PropertySheet::properties(int row) const
{
    return m_rows.at(size_t(row))->properties();
}

//! \a className is that of the object. \a expected is the number of the line that is probably that of the
//! property, and then that of the next property.
void PropertySheet::addProperty(size_t place, qsizetype index, const DesignerProperty &property,
                                const QString &className, size_t &expected)
{
    if (expected < m_lines.size() && m_lines[expected]->isRepeatedBy(place, property)) {
        m_lines[expected++]->addRepeated(place, index, property);
        return;
    }
    if (!isInSheets(property)) {
        return;
    }
    const auto fits = [&property, kind = property.className()](const std::unique_ptr<SheetLine> &known) {
        return known->id() == property.id() && known->kind() == kind;
    };
    if (expected >= m_lines.size() || !fits(m_lines[expected])) {
        expected = size_t(std::ranges::find_if(m_lines, fits) - m_lines.begin());
    }
    if (expected == m_lines.size()) {
        m_lines.push_back(std::make_unique<SheetLine>(property.id(), property.className(), m_expectedCount,
                                                      *m_objects, *m_defaults));
    }
    m_lines[expected]->add(place, index, property, className);
    ++expected;
}

//! Adds the object at that place to the lines. The rows are updated later.
void PropertySheet::addProperties(size_t place)
{
    const DesignerObject *object = m_objects->at(place);
    const QString className = object->className();
    const PropertyRange properties = object->properties();
    size_t expected = 0; // objects of a class have their properties in the same order
    for (qsizetype index = 0; index < properties.size(); ++index) {
        addProperty(place, index, properties.peek(index), className, expected);
    }
}

std::vector<SheetLine *> PropertySheet::wantedRows() const
{
    struct Wanted
    {
        SheetLine *line;
        QString group;
        int rank;
    };
    std::vector<Wanted> wanted;
    QHash<QString, int> groupRanks; // a group is placed where its first row would be
    for (const std::unique_ptr<SheetLine> &line : m_lines) {
        if (line->count() > 0 && line->count() == m_objects->count()) {
            const SheetRow row = line->summary();
            wanted.push_back({line.get(), row.group, row.rank});
            const int least = std::min(row.rank, groupRanks.value(row.group, row.rank));
            groupRanks.insert(row.group, row.group.isEmpty() ? std::numeric_limits<int>::min() : least);
        }
    }
    std::ranges::stable_sort(wanted, {}, [&groupRanks](const Wanted &row) {
        return std::tuple(groupRanks.value(row.group), row.group, row.rank);
    });
    std::vector<SheetLine *> rows;
    std::ranges::transform(wanted, std::back_inserter(rows), &Wanted::line);
    return rows;
}

//! Updates the rows one by one.
void PropertySheet::arrange()
{
    const std::vector<SheetLine *> wanted = wantedRows();
    const QSet<const SheetLine *> all(wanted.cbegin(), wanted.cend());
    for (int row = int(m_rows.size()) - 1; row >= 0; --row) {
        if (!all.contains(m_rows[size_t(row)])) {
            beginRemoveRows({}, row, row);
            m_rows.erase(m_rows.begin() + row);
            endRemoveRows();
        }
    }
    for (int row = 0; row < int(wanted.size()); ++row) {
        SheetLine *line = wanted[size_t(row)];
        const auto place = m_rows.begin() + row;
        const auto found = std::find(place, m_rows.end(), line);
        if (found == m_rows.end()) {
            beginInsertRows({}, row, row);
            line->shown = line->summary();
            m_rows.insert(place, line);
            endInsertRows();
        } else if (found != place) {
            beginMoveRows({}, int(found - m_rows.begin()), int(found - m_rows.begin()), {}, row);
            std::rotate(place, found, found + 1);
            endMoveRows();
        }
        refresh(*line);
    }
}

void PropertySheet::refresh(SheetLine &line)
{
    const auto row = std::ranges::find(m_rows, &line);
    if (row == m_rows.end()) {
        return;
    }
    const SheetRow before = std::exchange(line.shown, line.summary());
    QList<int> roles;
    for (const Field &field : fields()) {
        if (field.read(before) != field.read(line.shown)) {
            roles += field.roles();
        }
    }
    if (!roles.isEmpty()) {
        const int number = int(row - m_rows.begin());
        emit dataChanged(index(number, TitleColumn), index(number, ValueColumn), roles);
    }
}

//! A view may show parts of values that differ. A report for each object would be quadratic.
void PropertySheet::reportLater()
{
    if (!std::exchange(m_isReportDue, true)) {
        QMetaObject::invokeMethod(this, &PropertySheet::flush, Qt::QueuedConnection);
    }
}

void PropertySheet::flush()
{
    if (!std::exchange(m_isReportDue, false)) {
        return;
    }
    const auto value = std::ranges::find_if(fields(), &Field::isValue);
    for (int row = 0; row < int(m_rows.size()); ++row) {
        if (std::exchange(m_rows[size_t(row)]->isReportDue, false)) {
            emit dataChanged(index(row, ValueColumn), index(row, ValueColumn), value->roles());
        }
    }
}

PlannedCommand PropertySheet::set(int row, const QString &text) const
{
    QList<RequestedValue> values;
    for (const SharedProperty &property : properties(row)) {
        values.append({property, text});
    }
    return Commands::changeOf(values);
}

PlannedCommand PropertySheet::enter(int row, const QString &text) const
{
    QList<RequestedValue> values;
    for (const SharedProperty &property : properties(row)) {
        const ReadableValue::Reading reading = ReadableValue::read(*property, text);
        if (!reading.error.isEmpty()) {
            return {nullptr, reading.error, {}};
        }
        values.append({property, reading.stored});
    }
    return Commands::changeOf(values);
}

PlannedCommand PropertySheet::reset(int row) const
{
    QList<RequestedValue> values;
    for (const SharedProperty &property : properties(row)) {
        const QString text = m_defaults->of(*property);
        if (text.isNull()) {
            return refused(u"\"%1\" has no default value."_s, this->row(row).title);
        }
        values.append({property, text});
    }
    return Commands::changeOf(values);
}

PlannedCommand PropertySheet::paste(const QString &text) const
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        return refused(u"The clipboard holds no property values. Copy some from a property panel first."_s);
    }
    const QJsonObject copied = document.object();
    QList<RequestedValue> values;
    for (const SheetLine *line : m_rows) {
        const QJsonValue value = copied.value(line->id());
        if (value.isString() && !line->shown.isReadOnly && line->id() != "id"_L1) {
            for (const SharedProperty &property : line->properties()) {
                values.append({property, value.toString()});
            }
        }
    }
    if (values.isEmpty()) {
        return refused(u"The objects have none of the copied properties."_s);
    }
    return Commands::changeOf(values);
}

QString PropertySheet::copy(const QList<int> &rows) const
{
    QJsonObject copied;
    for (const int number : rows) {
        if (!row(number).isMixed) {
            copied.insert(row(number).id, row(number).value);
        }
    }
    return QString::fromUtf8(QJsonDocument(copied).toJson(QJsonDocument::Compact));
}

int PropertySheet::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int PropertySheet::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PropertySheet::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const SheetRow &row = this->row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == TitleColumn ? row.title : row.value;
    case Qt::EditRole:
        return index.column() == ValueColumn ? row.value : QVariant();
    case ReadableRole:
        return readable(index.row());
    case Qt::ToolTipRole:
        return row.error.isEmpty() ? row.description : row.error;
    default:
        break;
    }
    const auto field = std::ranges::find(fields(), role, &Field::role);
    return field == fields().end() ? QVariant() : field->read(row);
}

QVariant PropertySheet::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return LocalizationHelper::coreString(section == TitleColumn ? u"Property"_s : u"Value"_s);
}

QHash<int, QByteArray> PropertySheet::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    for (const Field &field : fields()) {
        names.insert(field.role, field.name);
    }
    names.insert(ReadableRole, "readable");
    return names;
}

//! Null if no line contains the property.
SheetLine *PropertySheet::lineOf(const SharedProperty &property, size_t place) const
{
    const auto line = std::ranges::find_if(
        m_lines, [&](const std::unique_ptr<SheetLine> &known) { return known->property(place) == property; });
    return line == m_lines.end() ? nullptr : line->get();
}

void PropertySheet::valueChanged(const SharedProperty &property, const QString &previousValue)
{
    const size_t *place = m_objects->placeOf(property->parentObject());
    if (SheetLine *line = place ? lineOf(property, *place) : nullptr) {
        const bool wasMixed = line->shown.isMixed;
        line->valueChanged(*place, previousValue);
        refresh(*line);
        line->isReportDue = wasMixed && line->shown.isMixed;
        if (line->isReportDue) {
            reportLater();
        }
    }
}

void PropertySheet::validityChanged(const SharedProperty &property)
{
    const size_t *place = m_objects->placeOf(property->parentObject());
    if (SheetLine *line = place ? lineOf(property, *place) : nullptr) {
        line->validityChanged(*place);
        refresh(*line);
    }
}

void PropertySheet::descriptorChanged(const SharedProperty &property)
{
    if (const size_t *place = m_objects->placeOf(property->parentObject())) {
        if (SheetLine *line = lineOf(property, *place)) {
            line->remove(*place);
        }
        const DesignerObject *object = property->parentObject();
        size_t expected = 0;
        addProperty(*place, object->properties().indexOf(property), *property, object->className(), expected);
        arrange();
    }
}

void PropertySheet::inserted(const SharedProperty &, qsizetype, DesignerObject *object)
{
    if (!m_objects->areAnyAway()) {
        return;
    }
    const std::vector<size_t> places = m_objects->returnedWith(object);
    for (const size_t place : places) {
        m_objects->enter(place);
        addProperties(place);
    }
    if (!places.empty()) {
        arrange();
    }
}

void PropertySheet::aboutToRemove(const SharedProperty &, qsizetype, DesignerObject *object)
{
    const std::vector<size_t> places = m_objects->placesIn(object);
    for (const size_t place : places) {
        m_objects->leave(place);
        for (const std::unique_ptr<SheetLine> &line : m_lines) {
            if (line->property(place)) {
                line->remove(place);
            }
        }
    }
    if (!places.empty()) {
        arrange();
    }
}

void PropertySheet::aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                                   DesignerObject *)
{
    aboutToRemove(list, index, oldObject);
}

void PropertySheet::replaced(const SharedProperty &list, qsizetype index, DesignerObject *,
                             DesignerObject *newObject)
{
    inserted(list, index, newObject);
}

void PropertySheet::projectAboutToLoad()
{
    setObjects({});
}

void PropertySheet::projectAboutToBeDestroyed()
{
    setObjects({});
}

} // namespace Halvane::Corvex::Designer
