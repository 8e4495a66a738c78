// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"

#include "TestObjects.h"

#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

struct Marker
{
    virtual ~Marker() = default;
    int mark = 5;
};

//! A property in which DesignerProperty is not the first base.
class Marked
    : public Marker
    , public StringProperty
{
public:
    Marked(DesignerObject *parent, const QString &id, const QString &name, const QString &value)
        : StringProperty(parent, id, name, value)
    { }

protected:
    Marked(DesignerObject *parent, const Marked &prototype)
        : StringProperty(parent, prototype)
    { }
};

//! Objects of one class with different properties.
class Sheet : public DesignerObject
{
    CORVEX_CLASS_NAMES(Sheet, DesignerObject)

public:
    explicit Sheet(const char *id)
        : m_id(id)
    {
        initialize();
    }

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<IntegerProperty>("first", "First", 7).overridesValue(),
            row<Marked>("marked", "Marked", u"m"_s),
        };
        const PropertyTable own{row<IntegerProperty>(m_id, "Own", 2)};
        return DesignerObject::initializeProperties() && addProperties(own) && addProperties(table);
    }

private:
    const char *m_id;
};

} // namespace

TEST(PropertyStore, ObjectsOfAClassMayDifferAndPropertiesKnowTheirOwner)
{
    QList<SharedProperty> kept;
    for (const char *id : {"first", "other", "first", "other", "other"}) {
        const auto sheet = std::make_unique<Sheet>(id);
        const bool isOther = QLatin1StringView(id) == "other"_L1;
        QStringList found;
        for (const SharedProperty &property : sheet->properties()) {
            EXPECT_EQ(property->parentObject(), sheet.get());
            found.append(property->id() + u'=' + property->valueString().section(u';', 0, 0));
        }
        found.removeFirst();
        EXPECT_EQ(found.join(u' '), isOther ? u"other=2 first=7 marked=m"_s : u"first=7 marked=m"_s);
        const SharedProperty marked = sheet->properties().last();
        EXPECT_EQ(sheet->properties().indexOf(marked), sheet->properties().count() - 1);
        EXPECT_EQ(static_cast<const Marked &>(*marked).mark, 5);
        EXPECT_TRUE(sheet->changePropertyValue(marked, u"set"_s));
        kept.append(marked);
    }
    for (const SharedProperty &property : kept) {
        EXPECT_EQ(property->parentObject(), nullptr);
        EXPECT_EQ(property->valueString(), u"set"_s);
    }
}

} // namespace Halvane::Corvex::Designer::Test
