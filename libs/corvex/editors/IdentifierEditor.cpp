// SPDX-License-Identifier: MIT
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/editors/ReferenceEditors.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/widgets/KdLineEdit.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! The number of values that a renaming will rewrite.
qsizetype usesOf(const DesignerObject *object)
{
    const ReferenceTarget target = ReferenceTarget::toItself(object);
    if (!target.isValid()) {
        return 0;
    }
    const QList<SharedProperty> candidates = ReferenceIndex::of(target.project()).candidates(target);
    return std::ranges::count_if(candidates, [&](const SharedProperty &property) {
        return std::ranges::any_of(ReferenceForm::mentions(*property), [&](const Mention &mention) {
            return target.isMeantBy(mention, property->parentObject());
        });
    });
}

//! A free name with the stem of a taken one: "pump3" for "pump1". Empty for objects that are files.
QString freeNameLike(const DesignerObject *object, const QString &name)
{
    QString stem = name;
    while (!stem.isEmpty() && stem.back().isDigit()) {
        stem.chop(1);
    }
    if (stem.isEmpty()) {
        return {};
    }
    if (object->isKindOfClass(Element::kindName())) {
        return object->screen() ? object->screen()->uniqueElementName(stem) : QString();
    }
    const bool isKnownEverywhere =
        object->isKindOfClass(Screen::kindName()) || object->isKindOfClass(u"ProjectVariable"_s);
    return isKnownEverywhere && object->project() ? object->project()->generateUniqueName(stem) : QString();
}

} // namespace

void IdentifierEditor::createFields()
{
    m_line = addLine();
    connect(m_line, &KdLineEdit::edited, this, &IdentifierEditor::explain);
}

//! The link is a free name.
void IdentifierEditor::followOffer(const QString &link)
{
    m_line->enterText(link);
    completeEntry();
}

DesignerObject *IdentifierEditor::object() const
{
    const SharedProperty first = firstProperty();
    return first && !hasSeveral() ? first->parentObject() : nullptr;
}

void IdentifierEditor::showRow()
{
    m_uses = -1;
    const DesignerObject *shown = object();
    m_line->setShownText(shown ? shown->getIdName() : QString());
    m_line->setPlaceholderText(shown ? QString()
                                     : LocalizationHelper::coreString(u"Each object has its own name"_s));
    setHint({});
}

//! Says what the typed name would do.
void IdentifierEditor::explain()
{
    const DesignerObject *edited = object();
    const QString name = m_line->text().trimmed();
    QString error;
    QString hint;
    Hint kind = Hint::Advice;
    if (edited && edited->project() && name != edited->getIdName() && !row().isReadOnly
        && edited->project()->undoStack()->mayEdit()) {
        error = PropertyValidators::nameError(edited, name);
        if (!error.isEmpty()) {
            const QString offer = freeNameLike(edited, name);
            if (!offer.isEmpty() && offer != name && PropertyValidators::nameError(edited, offer).isEmpty()) {
                kind = Hint::Offer;
                hint = LocalizationHelper::coreString(u"<a href=\"%1\">Use \"%1\"</a>, which is free."_s)
                           .arg(offer.toHtmlEscaped());
            }
        } else {
            m_uses = m_uses < 0 ? usesOf(edited) : m_uses;
            hint = m_uses == 0 ? QString()
                   : m_uses == 1
                       ? LocalizationHelper::coreString(u"Updates the one place that uses the name."_s)
                       : LocalizationHelper::coreString(u"Updates all %1 places that use the name."_s)
                             .arg(m_uses);
        }
    }
    setHint(hint, kind);
    refuse(error);
}

PlannedCommand IdentifierEditor::plan() const
{
    DesignerObject *renamed = object();
    const QString name = m_line->text().trimmed();
    return !renamed || renamed->getIdName() == name ? PlannedCommand() : Commands::renameOf(renamed, name);
}

} // namespace Halvane::Corvex::Designer
