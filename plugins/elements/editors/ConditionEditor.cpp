// SPDX-License-Identifier: MIT
#include "elements/editors/ConditionEditor.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ConditionInfo.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Arithmetic.h"
#include "corvex/widgets/KdComboBox.h"
#include "corvex/widgets/KdNumberEdit.h"
#include "corvex/widgets/Theme.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Elements {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

//! The words for a comparison, by its name in the value.
QString wordsFor(const QString &name)
{
    const QString english = name == "GT"_L1   ? u"above"_s
                            : name == "GE"_L1 ? u"at least"_s
                            : name == "LT"_L1 ? u"below"_s
                            : name == "LE"_L1 ? u"at most"_s
                                              : u"any value"_s;
    return LocalizationHelper::coreString(english);
}

bool isComparison(const QString &name)
{
    return !ConditionInfo::conditionToOperator(name).isEmpty();
}

//! "The value is above 10 and at most 20."
QString sentenceFor(const ConditionInfo &condition)
{
    const auto part = [](const QString &name, double number) {
        return u"%1 %2"_s.arg(wordsFor(name), ValueConversion::toString(number));
    };
    const bool isFirst = isComparison(condition.condition1());
    const bool isSecond = isComparison(condition.condition2());
    const QString first = part(condition.condition1(), condition.value1());
    const QString second = part(condition.condition2(), condition.value2());
    if (!isFirst && !isSecond) {
        return LocalizationHelper::coreString(u"Every value fulfills the condition."_s);
    }
    if (!isFirst || !isSecond) {
        return LocalizationHelper::coreString(u"The value is %1."_s).arg(isFirst ? first : second);
    }
    return LocalizationHelper::coreString(condition.isOr() ? u"The value is %1 or %2."_s
                                                           : u"The value is %1 and %2."_s)
        .arg(first, second);
}

} // namespace

void ConditionEditor::createFields()
{
    auto *lines = new QVBoxLayout;
    auto *grid = new QGridLayout;
    lines->setSpacing(Theme::gap);
    grid->setSpacing(Theme::gap);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    m_joint = new KdComboBox(this);
    m_joint->addItems({LocalizationHelper::coreString(u"and"_s), LocalizationHelper::coreString(u"or"_s)});
    m_comparisons[0] = addComparison(grid, 0);
    grid->addWidget(m_joint, 1, 0);
    prepareField(m_joint, LocalizationHelper::coreString(u"and or or"_s));
    m_comparisons[1] = addComparison(grid, 1);
    connect(m_joint, &KdComboBox::chosen, this, &ConditionEditor::completeEntry);
    connect(m_joint, &KdComboBox::stepped, this, &ConditionEditor::completeStep);
    m_sentence = new QLabel(this);
    m_sentence->setWordWrap(true);
    Theme::setTextColor(m_sentence, &Theme::muted);
    lines->addLayout(grid);
    lines->addWidget(m_sentence);
    fields()->addLayout(lines, 1);
}

ConditionEditor::Comparison ConditionEditor::addComparison(QGridLayout *grid, int line)
{
    const auto place = size_t(line);
    Comparison comparison{new KdComboBox(this), new KdNumberEdit(this)};
    for (const QString &name : ConditionInfo::validConditions()) {
        comparison.words->addItem(wordsFor(name), name);
    }
    const QString which = LocalizationHelper::coreString(line == 0 ? u"first"_s : u"second"_s);
    prepareField(comparison.words, which + u' ' + LocalizationHelper::coreString(u"comparison"_s));
    prepareLine(comparison.number, which + u' ' + LocalizationHelper::coreString(u"number"_s));
    grid->addWidget(comparison.words, line, 1);
    grid->addWidget(comparison.number, line, 2);
    connect(comparison.words, &KdComboBox::chosen, this, &ConditionEditor::completeEntry);
    connect(comparison.words, &KdComboBox::stepped, this, &ConditionEditor::completeStep);
    connect(comparison.number, &KdNumberEdit::stepRequested, this, [this, place](double steps) {
        m_stepped = place;
        m_change = steps;
        completeStep();
        m_change = 0;
    });
    return comparison;
}

void ConditionEditor::showComparison(const Comparison &comparison, const QString &name, double number) const
{
    comparison.words->setPlaceholderText(row().isMixed ? mixedText() : QString());
    comparison.words->setCurrentIndex(row().isMixed ? -1 : comparison.words->findData(name));
    comparison.number->setPlaceholderText(row().isMixed ? mixedText() : QString());
    comparison.number->setShownText(row().isMixed ? QString() : ValueConversion::toString(number));
    comparison.number->setEnabled(row().isMixed || isComparison(name));
}

void ConditionEditor::showRow()
{
    const ConditionInfo condition(row().value);
    showComparison(m_comparisons[0], condition.condition1(), condition.value1());
    showComparison(m_comparisons[1], condition.condition2(), condition.value2());
    m_joint->setCurrentIndex(row().isMixed ? -1 : int(condition.isOr()));
    m_joint->setEnabled(
        !row().isReadOnly
        && (row().isMixed || (isComparison(condition.condition1()) && isComparison(condition.condition2()))));
    m_sentence->setText(row().isMixed ? mixedText() : sentenceFor(condition));
}

//! What is shown as mixed keeps the value of each object.
PropertyEditor::Entry ConditionEditor::entryFor(const DesignerProperty &property) const
{
    const ConditionInfo own(property.valueString());
    std::array<QString, 2> names{own.condition1(), own.condition2()};
    std::array<double, 2> numbers{own.value1(), own.value2()};
    for (size_t place = 0; place < m_comparisons.size(); ++place) {
        const Comparison &comparison = m_comparisons[place];
        if (comparison.words->currentIndex() >= 0) {
            names[place] = comparison.words->currentData().toString();
        }
        if (comparison.number->hasEntry()) {
            const Arithmetic::Result result = Arithmetic::evaluate(comparison.number->text(), numbers[place]);
            if (!result.error.isEmpty()) {
                return {{}, result.error};
            }
            numbers[place] = result.number;
        }
        numbers[place] += place == m_stepped ? m_change : 0;
    }
    const bool isOr = m_joint->currentIndex() < 0 ? own.isOr() : m_joint->currentIndex() == 1;
    return {ConditionInfo(names[0], numbers[0], names[1], numbers[1], isOr).toString(), {}};
}

} // namespace Halvane::Corvex::Elements
