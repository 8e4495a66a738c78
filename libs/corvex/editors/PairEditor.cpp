// SPDX-License-Identifier: MIT
#include "corvex/editors/PairEditor.h"

#include "corvex/editing/words/ReadableValue.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Arithmetic.h"
#include "corvex/widgets/KdNumberEdit.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

void PairEditor::createFields()
{
    const std::array<Part, 2> all = parts();
    for (size_t place = 0; place < m_lines.size(); ++place) {
        auto *line = new KdNumberEdit(this);
        m_lines[place] = line;
        line->setSign(all[place].sign);
        prepareLine(line, all[place].name);
        fields()->addWidget(line, 1);
        connect(line, &KdNumberEdit::stepRequested, this, [this, place](double steps) {
            m_stepped = place;
            m_change = steps;
            completeStep();
            m_change = 0;
        });
        connect(line, &KdNumberEdit::edited, this, &PairEditor::check);
    }
}

QString PairEditor::unit() const
{
    return parameter("suffix").toString().trimmed();
}

void PairEditor::showRow()
{
    // If the values differ, one of the two numbers may still be common.
    std::array<std::optional<double>, 2> common;
    std::array<bool, 2> isMixed{};
    for (const SharedProperty &property : properties()) {
        const std::optional<Pair> pair = read(valueOf(*property));
        for (size_t place = 0; place < m_lines.size() && pair; ++place) {
            isMixed[place] = isMixed[place] || (common[place] && *common[place] != (*pair)[place]);
            common[place] = (*pair)[place];
        }
        if (!row().isMixed) {
            break;
        }
    }
    for (size_t place = 0; place < m_lines.size(); ++place) {
        KdNumberEdit *line = m_lines[place];
        line->setUnit(unit());
        line->setHasSteps(!parameter("noArrows").toBool());
        line->setPlaceholderText(isMixed[place] ? mixedText() : QString());
        line->setShownText(common[place] && !isMixed[place] ? ValueConversion::toString(*common[place])
                                                            : QString());
    }
}

PropertyEditor::Entry PairEditor::entryFor(const DesignerProperty &property) const
{
    const QString own = valueOf(property);
    const Pair held = read(own).value_or(Pair{});
    Pair changed = held;
    for (size_t place = 0; place < m_lines.size(); ++place) {
        const KdNumberEdit *line = m_lines[place];
        if (line->hasEntry()) {
            if (line->text().contains(separator())) {
                const ReadableValue::Reading both = ReadableValue::read(property, line->text());
                return {both.stored, both.error};
            }
            const QList<Arithmetic::Unit> units =
                unit().isEmpty() ? QList<Arithmetic::Unit>() : QList<Arithmetic::Unit>{{unit(), 1}};
            const Arithmetic::Result result = Arithmetic::evaluate(line->text(), held[place], units);
            if (!result.error.isEmpty()) {
                return {{}, result.error};
            }
            changed[place] = result.number;
        }
        if (m_change != 0 && place == m_stepped) {
            changed[place] += m_change;
        }
    }
    const bool isOneEntry = (changed[0] != held[0]) != (changed[1] != held[1]);
    if (isOneEntry) {
        adjust(held, changed[0] != held[0] ? 0 : 1, changed);
    }
    return {changed == held ? own : print(changed, own), {}};
}

//! Shows a reason against the entry as soon as both numbers can be read.
void PairEditor::check()
{
    const SharedProperty first = firstProperty();
    if (!checksWhileTyping() || !first) {
        return;
    }
    const Entry entry = entryFor(*first);
    const QString reason = entry.error.isEmpty() ? first->refusalOf(entry.text) : QString();
    if (entry.error.isEmpty()) {
        refuse(reason);
    }
}

} // namespace Halvane::Corvex::Designer
