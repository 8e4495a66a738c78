// SPDX-License-Identifier: MIT
#include "corvex/editors/ChoiceEditors.h"

#include "corvex/common/EnumHelper.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/editors/private/OriginPicture.h"
#include "corvex/values/text/EnumWords.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/AccessibleValue.h"
#include "corvex/widgets/KdComboBox.h"
#include "corvex/widgets/Theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int turns[] = {0, 90, 180, 270};

//! A box for a flag that may differ between objects.
void showFlag(QCheckBox *box, bool isMixed, bool isOn)
{
    box->setTristate(isMixed);
    box->setCheckState(isMixed ? Qt::PartiallyChecked : isOn ? Qt::Checked : Qt::Unchecked);
}

//! A flag in a text of flags.
struct Flag
{
    QString key;
    bool isOn = false;
};

QList<Flag> flagsOf(const QString &text)
{
    QList<Flag> flags;
    for (const QString &field : text.split(u',')) {
        const QStringList parts = field.split(u':');
        flags.append({parts.value(0).trimmed(), parts.value(1).trimmed() == "true"_L1});
    }
    return flags;
}

QString textOf(const QList<Flag> &flags)
{
    QStringList fields;
    for (const Flag &flag : flags) {
        fields.append(u"%1: %2"_s.arg(flag.key, ValueConversion::toString(flag.isOn)));
    }
    return fields.join(u", "_s);
}

//! The words for a flag, by its key in the text.
struct FlagRow
{
    QLatin1StringView key;
    const char *words;
};

QString wordsIn(std::initializer_list<FlagRow> rows, const QString &key)
{
    const auto *row = std::ranges::find(rows, key, &FlagRow::key);
    return row == rows.end() ? EnumWords::of(key)
                             : LocalizationHelper::coreString(QString::fromLatin1(row->words));
}

} // namespace

void BooleanEditor::createFields()
{
    m_box = new QCheckBox(this);
    m_box->setMinimumHeight(Theme::fieldHeight(this));
    addField(m_box, {}, 1);
    connect(m_box, &QCheckBox::clicked, this, &BooleanEditor::completeEntry);
}

void BooleanEditor::showRow()
{
    showFlag(m_box, row().isMixed, row().value == "true"_L1);
    m_box->setText(row().isMixed ? mixedText() : note());
}

PropertyEditor::Entry BooleanEditor::entryFor(const DesignerProperty &property) const
{
    return m_box->checkState() == Qt::PartiallyChecked
               ? Entry{valueOf(property), {}}
               : Entry{ValueConversion::toString(m_box->isChecked()), {}};
}

void EnumEditor::createFields()
{
    m_box = new KdComboBox(this);
    addField(m_box, {}, 1);
    connect(m_box, &KdComboBox::chosen, this, &EnumEditor::completeEntry);
    connect(m_box, &KdComboBox::stepped, this, &EnumEditor::completeStep);
}

void EnumEditor::showRow()
{
    const SharedProperty first = firstProperty();
    const auto *property = !first ? nullptr : propertyCast<EnumProperty>(first);
    const QMetaEnum enumerator = property ? property->value().enumerator()
                                          : Common::EnumHelper::metaEnum(parameter("enumName").toString());
    QStringList keys;
    for (int index = 0; index < enumerator.keyCount(); ++index) {
        keys.append(QString::fromLatin1(enumerator.key(index)));
    }
    if (keys != m_keys) {
        m_keys = keys;
        m_box->clear();
        for (const QString &key : std::as_const(m_keys)) {
            m_box->addItem(EnumWords::of(key));
            m_box->setItemData(m_box->count() - 1, key, Qt::ToolTipRole); // as scripts and files have it
        }
    }
    m_box->setPlaceholderText(row().isMixed ? mixedText() : row().value);
    m_box->setCurrentIndex(row().isMixed ? -1 : int(m_keys.indexOf(row().value)));
}

PropertyEditor::Entry EnumEditor::entryFor(const DesignerProperty &property) const
{
    return {m_keys.value(m_box->currentIndex(), valueOf(property)), {}};
}

void TransformOriginEditor::createFields()
{
    m_picture = new OriginPicture(this);
    addField(m_picture);
    m_name = new QLabel(this);
    Theme::setTextColor(m_name, &Theme::muted);
    fields()->addWidget(m_name, 1);
    const auto choose = [this](int point) {
        m_chosen = TransformOriginProperty::enumToString(QQuickItem::TransformOrigin(point));
    };
    connect(m_picture, &OriginPicture::clicked, this, [this, choose](int point) {
        choose(point);
        completeEntry();
    });
    connect(m_picture, &OriginPicture::stepped, this, [this, choose](int point) {
        choose(point);
        completeStep();
    });
}

void TransformOriginEditor::showRow()
{
    bool isKnown = false;
    const QQuickItem::TransformOrigin origin = TransformOriginProperty::stringToEnum(row().value, &isKnown);
    m_picture->setPoint(isKnown ? int(origin) : -1);
    m_name->setText(row().isMixed ? mixedText() : EnumWords::of(row().value));
    AccessibleValue::set(m_picture, m_name->text());
}

PropertyEditor::Entry TransformOriginEditor::entryFor(const DesignerProperty &property) const
{
    return {m_chosen.isEmpty() ? valueOf(property) : m_chosen, {}};
}

void ScreenOrientationEditor::createFields()
{
    m_turns = new QButtonGroup(this);
    for (const int turn : turns) {
        auto *button = new QToolButton(this);
        const QString name = u"%1\u00B0"_s.arg(turn);
        button->setText(name);
        button->setCheckable(true);
        button->setFixedHeight(Theme::fieldHeight(this));
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setFocusPolicy(Qt::StrongFocus);
        m_turns->addButton(button, turn);
        addField(button, name, 1);
    }
    connect(m_turns, &QButtonGroup::idClicked, this, &ScreenOrientationEditor::completeEntry);
}

void ScreenOrientationEditor::showRow()
{
    QAbstractButton *current = row().isMixed ? nullptr : m_turns->button(row().value.toInt());
    m_turns->setExclusive(current != nullptr); // otherwise no button could be up again
    for (QAbstractButton *button : m_turns->buttons()) {
        button->setChecked(button == current);
    }
}

PropertyEditor::Entry ScreenOrientationEditor::entryFor(const DesignerProperty &property) const
{
    return {m_turns->checkedId() < 0 ? valueOf(property) : QString::number(m_turns->checkedId()), {}};
}

void FlagsEditor::createFields()
{
    auto *list = new QVBoxLayout;
    list->setSpacing(0);
    fields()->addLayout(list, 1);
    for (const Flag &flag : flagsOf(valueOf(*properties().constFirst()))) {
        auto *box = new QCheckBox(wordsFor(flag.key), this);
        box->setMinimumHeight(Theme::fieldHeight(this));
        prepareField(box, box->text());
        list->addWidget(box);
        m_boxes.insert(flag.key, box);
        connect(box, &QCheckBox::clicked, this, [this, key = flag.key] {
            m_clicked = key;
            completeEntry();
        });
    }
}

void FlagsEditor::showRow()
{
    QMap<QString, bool> isOn;
    QMap<QString, bool> isMixed;
    for (const SharedProperty &property : properties()) {
        for (const Flag &flag : flagsOf(valueOf(*property))) {
            isMixed[flag.key] = isMixed[flag.key] || isOn.value(flag.key, flag.isOn) != flag.isOn;
            isOn[flag.key] = flag.isOn;
        }
        if (!row().isMixed) {
            break;
        }
    }
    for (auto box = m_boxes.begin(); box != m_boxes.end(); ++box) {
        showFlag(box.value(), isMixed.value(box.key()), isOn.value(box.key()));
    }
}

//! Only the flag that the user has clicked changes; the others may differ between the objects.
PropertyEditor::Entry FlagsEditor::entryFor(const DesignerProperty &property) const
{
    QList<Flag> flags = flagsOf(valueOf(property));
    const auto clicked = std::ranges::find(flags, m_clicked, &Flag::key);
    if (clicked != flags.end()) {
        clicked->isOn = m_boxes.value(m_clicked)->isChecked();
    }
    return {textOf(flags), {}};
}

QString ErrorFlagsEditor::wordsFor(const QString &key) const
{
    return wordsIn(
        {
            {"busy"_L1, "The target is busy"},
            {"offline"_L1, "The target is offline"},
            {"name"_L1, "The name is unknown"},
            {"value"_L1, "The value cannot be read"},
            {"type"_L1, "The type is wrong"},
            {"dataFlow"_L1, "The description is wrong"},
        },
        key);
}

QString IOErrorFlagsEditor::wordsFor(const QString &key) const
{
    return wordsIn({{"id"_L1, "The channel is unknown"}, {"io"_L1, "Input or output fails"}}, key);
}

} // namespace Halvane::Corvex::Designer
