// SPDX-License-Identifier: MIT
#include "corvex/editors/TextEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/KdTextEdit.h"
#include "corvex/widgets/Theme.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QToolButton>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! How hard a password is to guess. The device has no rule of its own.
enum class Strength { Weak, Fair, Strong };

Strength strengthOf(const QString &password)
{
    constexpr int fairLength = 8;
    constexpr int strongLength = 12;
    constexpr int phraseLength = 16;
    constexpr int manyKinds = 3;
    const auto has = [&password](auto isOfKind) { return int(std::ranges::any_of(password, isOfKind)); };
    const int kinds = has([](QChar sign) { return sign.isLower(); })
                      + has([](QChar sign) { return sign.isUpper(); })
                      + has([](QChar sign) { return sign.isDigit(); })
                      + has([](QChar sign) { return !sign.isLetterOrNumber(); });
    QString different = password;
    std::ranges::sort(different);
    different.erase(std::ranges::unique(different).begin(), different.end());
    if (password.size() < fairLength || different.size() < fairLength / 2) {
        return Strength::Weak;
    }
    return password.size() >= phraseLength || (password.size() >= strongLength && kinds >= manyKinds)
               ? Strength::Strong
               : Strength::Fair;
}

} // namespace

void PlainTextEditor::createFields()
{
    m_text = new KdTextEdit(this);
    addField(m_text, {}, 1);
    connect(m_text, &KdTextEdit::edited, this, &PlainTextEditor::markEdited);
    connect(m_text, &KdTextEdit::entered, this, &PlainTextEditor::completeEntry);
    connect(m_text, &KdTextEdit::restored, this, &PlainTextEditor::restore);
    connect(m_text, &KdTextEdit::heightChanged, this, &PlainTextEditor::heightChanged);
}

void PlainTextEditor::showRow()
{
    m_text->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_text->setShownText(row().value);
}

PropertyEditor::Entry PlainTextEditor::entryFor(const DesignerProperty &) const
{
    return {m_text->toPlainText(), {}};
}

void ReadOnlyLineEditor::createFields()
{
    m_line = new KdLineEdit(this);
    m_line->setFrame(false);
    // Without a frame, the text begins where it does in other fields.
    m_line->setTextMargins(2, 0, 0, 0);
    QPalette transparent;
    transparent.setColor(QPalette::Base, Qt::transparent);
    m_line->setPalette(transparent);
    prepareLine(m_line);
    fields()->addWidget(m_line, 1);
}

void ReadOnlyLineEditor::showRow()
{
    const SharedProperty first = firstProperty();
    m_line->setReadOnly(true);
    m_line->setPlaceholderText(row().isMixed ? mixedText() : u"\u2013"_s);
    m_line->setShownText(row().isMixed || !first ? QString() : ReadableValue::print(*first, row().value));
}

void OriginalLocationEditor::createFields()
{
    ReadOnlyLineEditor::createFields();
    m_folder = new FieldButton(IconSet::Folder, LocalizationHelper::coreString(u"Show in folder"_s), this);
    fields()->addWidget(m_folder); // it serves read-only rows, too
    connect(m_folder, &QToolButton::clicked, this, &OriginalLocationEditor::showInFolder);
}

void OriginalLocationEditor::showRow()
{
    ReadOnlyLineEditor::showRow();
    line()->setToolTip(row().value); // longer than the field
    m_folder->setEnabled(!row().value.isEmpty());
    m_folder->setAccessibleName(row().title + u", "_s + LocalizationHelper::coreString(u"show in folder"_s));
}

void OriginalLocationEditor::showInFolder()
{
    const QString folder = QFileInfo(row().value).absolutePath();
    if (!QDir(folder).exists()) {
        refuse(LocalizationHelper::coreString(
                   u"The folder \"%1\" does not exist on this computer. The project has its own copy of the "
                   "image."_s)
                   .arg(folder));
        return;
    }
    restore();
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

void ProjectPasswordEditor::createFields()
{
    m_line = addLine();
    m_line->setEchoMode(QLineEdit::Password);
    m_line->setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    m_show = new FieldButton(IconSet::Eye, LocalizationHelper::coreString(u"Show while pressed"_s), this);
    m_show->setFocusPolicy(Qt::TabFocus); // a click leaves the entry open
    fields()->addWidget(m_show);          // it serves read-only rows, too
    connect(m_show, &QToolButton::pressed, this, [this] { m_line->setEchoMode(QLineEdit::Normal); });
    connect(m_show, &QToolButton::released, this, [this] { m_line->setEchoMode(QLineEdit::Password); });
    connect(m_line, &KdLineEdit::edited, this, &ProjectPasswordEditor::showStrength);
}

void ProjectPasswordEditor::showRow()
{
    m_line->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_line->setShownText(row().value);
    m_show->setEnabled(!row().isMixed);
    m_show->setAccessibleName(row().title + u", "_s
                              + LocalizationHelper::coreString(u"show while pressed"_s));
    showStrength();
}

//! Only while the user types, so that a glance at the panel does not tell how good the password is.
void ProjectPasswordEditor::showStrength()
{
    QString hint;
    if (m_line->hasEntry() && !m_line->text().isEmpty()) {
        const Strength strength = strengthOf(m_line->text());
        hint = LocalizationHelper::coreString(
            strength == Strength::Strong ? u"This password is strong."_s
            : strength == Strength::Fair
                ? u"This password is fair. A strong one has 12 characters of several kinds, or 16."_s
                : u"This password is weak. Use at least 8 different characters."_s);
    }
    setHint(hint);
    if (!hint.isEmpty()) {
        refuse({}); // an error of the value, such as that it is empty, no longer applies
    }
}

PropertyEditor::Entry ProjectPasswordEditor::entryFor(const DesignerProperty &) const
{
    return {m_line->text(), {}};
}

} // namespace Halvane::Corvex::Designer
