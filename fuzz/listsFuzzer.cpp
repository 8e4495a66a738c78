// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/MapInfo.h"
#include "corvex/values/runtime/PropertyInfoList.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/values/text/PairList.h"

#include "FuzzSupport.h"

#include <QStringList>

using namespace Halvane::Corvex::Designer;

namespace {

//! Returns the pieces of the input in turn, repeatedly.
class Pieces
{
public:
    explicit Pieces(const QString &text)
        : m_pieces(text.split(u'~'))
    { }

    qsizetype count() const { return m_pieces.size(); }
    QString next() { return m_pieces[m_next++ % m_pieces.size()]; }

private:
    QStringList m_pieces;
    qsizetype m_next = 0;
};

PropertyInfoList propertyValues(Pieces &pieces)
{
    PropertyInfoList values;
    for (qsizetype i = 0; i < pieces.count() % 3; ++i) {
        values.append(PropertyInfo(pieces.next(), pieces.next()));
    }
    return values;
}

UpdateObjectInfo update(Pieces &pieces)
{
    UpdateObjectInfo info;
    info.setName(pieces.next());
    info.setPropertyValues(propertyValues(pieces));
    info.setParentObject(pieces.next());
    info.setParentProperty(pieces.next());
    info.setClassName(pieces.next());
    info.setScreen(pieces.next());
    info.setUpgradeVersion(pieces.next());
    info.setElementIndex(int(pieces.next().size()) - 1);
    return info;
}

//! Lists of any texts must read back.
void checkBuilt(const QString &text)
{
    Pieces pieces(text);
    ListInfo list;
    MapInfo map;
    PropertyList changes;
    UpdateObjectList updates;
    for (qsizetype i = 0; i < pieces.count(); ++i) {
        list.append(pieces.next());
        map.insert(pieces.next(), pieces.next());
        changes.append(PropertyChangeInfo(pieces.next(), pieces.next(), pieces.next()));
        updates.append(update(pieces));
    }
    Fuzz::checkRecord("list of texts", list);
    Fuzz::checkRecord("map", map);
    Fuzz::checkRecord("updates of objects", updates);
    if (!changes.isEmpty()) {
        Fuzz::checkRecord("property changes", changes);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = Fuzz::toText(data, size);
    Fuzz::checkText<ListInfo>("list of texts", text);
    Fuzz::checkText<MapInfo>("map", text);
    Fuzz::checkText<PairList>("pairs", text);
    Fuzz::checkText<PropertyInfoList>("values of properties", text);
    Fuzz::checkText(
        "update of an object", text,
        [](const QString &form, bool *ok) {
            const UpdateObjectInfo update(form, ok);
            // Empty fields are omitted, and the text of an update without any fields cannot be read back.
            *ok = *ok && update != UpdateObjectInfo();
            return update;
        },
        [](const UpdateObjectInfo &update) { return update.toString(); });
    Fuzz::checkText<UpdateObjectList>("updates of objects", text);
    Fuzz::checkText(
        "property changes", text,
        [](const QString &form, bool *ok) {
            const PropertyList changes(form, ok);
            // Changes without names are omitted, and the text of an empty list cannot be read back.
            *ok = *ok && !changes.isEmpty();
            return changes;
        },
        [](const PropertyList &changes) { return changes.toString(); });
    checkBuilt(text);
    return 0;
}
