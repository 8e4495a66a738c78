// SPDX-License-Identifier: MIT
#include "corvex/preview/TypeDocument.h"

#include <QMap>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

//! The members of a box that the generator sets and that it inherits from Item.
const QSet<QString> &itemMembers()
{
    static const QSet<QString> names{
        u"objectName"_s, u"x"_s,        u"y"_s,       u"z"_s,       u"width"_s,          u"height"_s,
        u"scale"_s,      u"rotation"_s, u"opacity"_s, u"visible"_s, u"transformOrigin"_s};
    return names;
}

QString declaration(const QString &property)
{
    const bool isHandler = property.size() > 2 && property.startsWith("on"_L1) && property.at(2).isUpper();
    return isHandler ? u"    signal %1()\n"_s.arg(property.at(2).toLower() + property.mid(3))
                     : u"    property var %1\n"_s.arg(property);
}

//! Declares the properties that are not in \a members. A group of properties ("font.bold") becomes an object
//! that accepts its members.
QString declarations(const QSet<QString> &properties, const QSet<QString> &members)
{
    QString lines;
    QMap<QString, QStringList> groups;
    for (const QString &property : properties) {
        const QString first = property.section(u'.', 0, 0);
        // "id" is not a property, and every object has "Component.onCompleted".
        if (first == "id"_L1 || first.at(0).isUpper() || members.contains(first)) {
            continue;
        }
        if (first == property) {
            lines += declaration(property);
        } else {
            groups[first].append(property.section(u'.', 1));
        }
    }
    for (const auto &[group, names] : groups.asKeyValueRange()) {
        const QString type = u"Group_"_s + group;
        lines += u"    component %1: QtObject {"_s.arg(type);
        for (const QString &name : names) {
            lines += u" property var %1;"_s.arg(name);
        }
        lines += u" }\n    readonly property %1 %2: %1 {}\n"_s.arg(type, group);
    }
    return lines;
}

} // namespace

QString TypeDocument::box(const QString &className, const QSet<QString> &properties)
{
    return u"import QtQuick 2.15 as Quick\nimport QtQml 2.15\n"
           "Quick.Rectangle {\n"
           "    id: box\n%2"
           "    implicitWidth: 120; implicitHeight: 48\n"
           "    color: \"#fff4d6\"; border.color: \"#a06a00\"; border.width: 1\n"
           "    Quick.Text {\n"
           "        anchors.fill: parent; anchors.margins: 2; text: \"%1\\n\" + box.objectName\n"
           "        textFormat: Quick.Text.PlainText\n"
           "        color: \"#5a3c00\"; font.pixelSize: 12; fontSizeMode: Quick.Text.Fit; minimumPixelSize: "
           "6\n"
           "        horizontalAlignment: Quick.Text.AlignHCenter; verticalAlignment: "
           "Quick.Text.AlignVCenter\n"
           "    }\n"
           "}\n"_s.arg(className, declarations(properties, itemMembers()));
}

QString TypeDocument::derived(const QString &base, const QSet<QString> &members,
                              const QSet<QString> &properties)
{
    return u"import QtQml 2.15\nimport RuntimeObjects 2.0\n%1 {\n%2}\n"_s.arg(
        base, declarations(properties, members));
}

QString TypeDocument::screen(const QString &screen, const QSet<QString> &lists)
{
    QString declarations;
    for (const QString &list : lists) {
        declarations += u"    property list<QtObject> %1\n"_s.arg(list);
    }
    const qsizetype body = screen.indexOf("{\n"_L1) + 2;
    return screen.first(body) + declarations + screen.sliced(body);
}

} // namespace Halvane::Corvex::Preview
