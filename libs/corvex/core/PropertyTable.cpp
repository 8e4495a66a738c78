// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyTable.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/private/PropertyStore.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A descriptor without a value, for rows that do not set the value.
class Description : public DesignerProperty
{
public:
    explicit Description(const DesignerProperty &described)
        : DesignerProperty(nullptr, described)
        , m_className(described.className())
    { }

    QString className() const override { return m_className; }

    bool convertToValue(const QString &) override { return false; }
    QString convertToValueString() const override { return {}; }
    bool valueIsEqual(const QString &) const override { return true; }
    bool validateValue(QString &) const override { return true; }

private:
    QString m_className;
};

} // namespace

PropertyRow PropertyRow::redescribe(const SharedProperty &described)
{
    return PropertyRow(QSharedPointer<Description>::create(*described), nullptr, nullptr, 0);
}

PropertyRow::PropertyRow(const SharedProperty &prototype, Maker maker, Builder builder, size_t size)
    : m_prototype(prototype)
    , m_maker(maker)
    , m_builder(builder)
    , m_size(size)
{
    if (maker && !prototype->flags()) {
        prototype->setFlags(OrdinaryFlags);
    }
    if (maker && !prototype->isList() && !prototype->isObject()) {
        PropertyDescriptor &descriptor = m_prototype->ownDescriptor();
        descriptor.initialText = prototype->convertToValueString();
        descriptor.utf8Initial = descriptor.initialText.toUtf8();
    }
}

SharedProperty PropertyRow::make(DesignerObject *parent) const
{
    return parent ? parent->makeProperty(*this) : makeAlone(nullptr);
}

QString PropertyRow::text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QString PropertyRow::title(const char *utf8)
{
    return Common::LocalizationHelper::coreString(text(utf8));
}

SharedProperty PropertyRow::belongingTo(DesignerObject *parent, const SharedProperty &property)
{
    property->setParentObject(parent);
    return property;
}

PropertyRow &PropertyRow::rank(int rank)
{
    m_prototype->setRank(rank);
    return *this;
}

PropertyRow &PropertyRow::flags(int flags)
{
    m_prototype->setFlags(PropertyFlags::fromInt(flags));
    return *this;
}

PropertyRow &PropertyRow::editor(const char *editorName)
{
    m_prototype->setEditor(text(editorName), m_prototype->editorParameters());
    return *this;
}

PropertyRow &PropertyRow::parameter(const char *key, const QVariant &value)
{
    m_prototype->setEditorParameter(text(key), value);
    return *this;
}

PropertyRow &PropertyRow::tooltip(const char *tooltip)
{
    m_prototype->setEditorParameter(u"tooltip"_s, title(tooltip));
    return *this;
}

PropertyRow &PropertyRow::description(const char *description)
{
    return this->description(title(description));
}

PropertyRow &PropertyRow::description(const QString &description)
{
    m_prototype->setDescription(description);
    return *this;
}

PropertyRow &PropertyRow::allowInvalid()
{
    m_prototype->setAllowInvalidValue(true);
    return *this;
}

PropertyRow &PropertyRow::filter(std::initializer_list<const char *> classNames)
{
    QStringList filters;
    for (const char *className : classNames) {
        filters.append(text(className));
    }
    m_prototype->setObjectFilters(filters);
    return *this;
}

PropertyRow &PropertyRow::validator(ValueValidator check)
{
    m_prototype->setValueValidator(check);
    return *this;
}

PropertyRow &PropertyRow::addValidator(ItemValidator check)
{
    m_prototype->setAddValidator(check);
    return *this;
}

PropertyRow &PropertyRow::removeValidator(ItemValidator check)
{
    m_prototype->setRemoveValidator(check);
    return *this;
}

PropertyRow &PropertyRow::qml(BindingsCreator creator)
{
    m_prototype->setBindingsCreator(creator);
    return *this;
}

PropertyRow &PropertyRow::references(Form form)
{
    m_prototype->setReferences(form);
    return *this;
}

PropertyRow &PropertyRow::statesOf(const char *linkId)
{
    m_prototype->setStatesOf(text(linkId));
    return *this;
}

PropertyRow &PropertyRow::needsPictures()
{
    m_prototype->setNeedsPictures(true);
    return *this;
}

PropertyRow &PropertyRow::overridesValue()
{
    m_overridesValue = true;
    return *this;
}

PropertyTable::PropertyTable(std::initializer_list<PropertyRow> rows)
    : m_rows(rows)
{ }

const std::vector<qsizetype> &PropertyTable::placesAmong(const PropertyStore &properties) const
{
    const std::lock_guard lock(m_mutex);
    const auto isSame = [&properties](const Places &known) {
        bool same = known.ids.size() == properties.count();
        for (qsizetype i = 0; i < known.ids.size() && same; ++i) {
            const QString &id = properties.at(i)->id();
            same = id.constData() == known.ids.at(i).constData() || id == known.ids.at(i);
        }
        return same;
    };
    const auto found = std::ranges::find_if(m_places, isSame);
    if (found != m_places.end()) {
        return found->places;
    }
    Places &places = m_places.emplace_back();
    for (const DesignerProperty *property : properties) {
        places.ids.append(property->id());
    }
    for (const PropertyRow &row : m_rows) {
        places.places.push_back(places.ids.indexOf(row.id()));
    }
    return places.places;
}

bool PropertyTable::redescribe(const PropertyRow &row, DesignerProperty &property) const
{
    if (row.m_prototype->className() != property.className()) {
        qWarning("Property \"%s\" cannot be redescribed as another kind.", qUtf8Printable(property.id()));
        return false;
    }
    const bool startsAlike = property.initialText() == row.m_prototype->descriptor().initialText;
    property.shareDescriptor(*row.m_prototype);
    const bool staysInitial = property.m_isInitial && startsAlike;
    const bool isTaken =
        !row.m_overridesValue || property.convertToValue(row.m_prototype->convertToValueString());
    property.m_isInitial = row.m_overridesValue || staysInitial;
    return isTaken;
}

} // namespace Halvane::Corvex::Designer
