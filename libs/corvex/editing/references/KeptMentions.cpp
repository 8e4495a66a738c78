// SPDX-License-Identifier: MIT
#include "corvex/editing/references/KeptMentions.h"

#include "corvex/core/ItemList.h"
#include "corvex/core/xml/ReadNote.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool isPartOfName(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

//! Digits may precede the name, as in an expression term.
bool hasWord(const QString &text, const QString &name)
{
    for (qsizetype at = text.indexOf(name); at >= 0; at = text.indexOf(name, at + 1)) {
        const qsizetype end = at + name.size();
        const bool isStart = at == 0 || !isPartOfName(text[at - 1]) || text[at - 1].isDigit();
        if (isStart && (end == text.size() || !isPartOfName(text[end]))) {
            return true;
        }
    }
    return false;
}

//! All values in the text of an element, one per line.
QString valuesIn(const QByteArray &xml)
{
    static const QRegularExpression value(uR"x(\bvalue="([^"]*)")x"_s);
    QStringList values;
    for (const QRegularExpressionMatch &match : value.globalMatch(QString::fromUtf8(xml))) {
        values.append(match.captured(1));
    }
    return values.join(u'\n');
}

} // namespace

KeptMentions::KeptMentions(const Project &project, const QSet<const DesignerObject *> &leftOut)
{
    const bool keepsSome = std::ranges::any_of(
        project.readNotes(), [](const ReadNote &note) { return note.kind == ReadNote::Kept; });
    if (keepsSome) {
        read(project, leftOut);
    }
}

void KeptMentions::read(const DesignerObject &object, const QSet<const DesignerObject *> &leftOut)
{
    if (leftOut.contains(&object)) {
        return;
    }
    const auto *screen = kindCast<Screen>(&object);
    for (const SharedProperty &property : object.properties()) {
        const ItemList *list = property->itemList();
        for (const KeptItem &kept : list ? list->keptItems() : QList<KeptItem>()) {
            const QString owner = object.ownerObject() ? object.objectPath() + u'.' : QString();
            const QString name = kept.name.isEmpty() ? u"<%1>"_s.arg(kept.className) : kept.name;
            m_kept.append({owner + name, screen ? screen : object.screen(), valuesIn(kept.xml)});
        }
    }
    for (const DesignerObject *child : object.childObjects()) {
        read(*child, leftOut);
    }
}

QStringList KeptMentions::of(const QString &name, const Screen *screen) const
{
    QStringList paths;
    for (const Kept &kept : m_kept) {
        if ((!screen || kept.screen == screen) && !name.isEmpty() && hasWord(kept.text, name)) {
            paths.append(kept.path);
        }
    }
    return paths;
}

} // namespace Halvane::Corvex::Designer
