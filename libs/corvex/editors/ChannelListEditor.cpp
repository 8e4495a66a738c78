// SPDX-License-Identifier: MIT
// The editors of channel lists in a device configuration.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/editors/HardwareEditors.h"
#include "corvex/editors/private/ModelWatch.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationRules.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/widgets/Theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::EnumHelper;
using Common::LocalizationHelper;

namespace {

enum Column { ChannelColumn, UseColumn, UserColumn, ColumnCount };
//! The word of a use, in the column of uses.
constexpr int WordRole = Qt::UserRole;

constexpr int fewestRows = 2;
constexpr int mostRows = 9;

struct UseTitle
{
    EnumHelper::InputOutputType type;
    const char *title;
};

constexpr UseTitle titles[] = {
    {EnumHelper::UNUSED, "Not used"},     {EnumHelper::INPUT, "Input"},
    {EnumHelper::OUTPUT, "Output"},       {EnumHelper::COMTYPE, "Serial port"},
    {EnumHelper::RECEIVE, "Receive"},     {EnumHelper::SEND, "Send"},
    {EnumHelper::DIRECTION, "Direction"}, {EnumHelper::UNAVAILABLE, "Not available"},
    {EnumHelper::CSPIN, "Chip select"},
};

QString wordOf(EnumHelper::InputOutputType type)
{
    return QString::fromLatin1(QMetaEnum::fromType<EnumHelper::InputOutputType>().valueToKey(type));
}

bool isOn(const SharedProperty &property)
{
    return valueAs<BooleanProperty>(property);
}

RS485Lines linesOf(const Configuration &model)
{
    return {isOn(model.enableRS485()), model.sharesRS485Pins(),
            ChannelList(model.serialRS485Ports()->valueString())};
}

} // namespace

//! Opens a choice of uses in the second column.
class ChannelUseDelegate : public QStyledItemDelegate
{
public:
    explicit ChannelUseDelegate(ChannelListEditor *editor)
        : QStyledItemDelegate(editor)
        , m_editor(editor)
    { }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        auto *choice = new QComboBox(parent);
        choice->setAccessibleName(LocalizationHelper::coreString(u"Use"_s));
        for (const EnumHelper::InputOutputType type : m_editor->uses()) {
            choice->addItem(ChannelListEditor::titleOf(wordOf(type)), wordOf(type));
        }
        auto *self = const_cast<ChannelUseDelegate *>(this);
        connect(choice, &QComboBox::activated, self, [self, choice] {
            emit self->commitData(choice);
            emit self->closeEditor(choice);
        });
        QMetaObject::invokeMethod(choice, &QComboBox::showPopup, Qt::QueuedConnection);
        return choice;
    }

    void setEditorData(QWidget *field, const QModelIndex &index) const override
    {
        auto *choice = static_cast<QComboBox *>(field);
        choice->setCurrentIndex(choice->findData(index.data(WordRole)));
    }

    void setModelData(QWidget *field, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        const QString word = static_cast<QComboBox *>(field)->currentData().toString();
        if (word.isEmpty() || word == index.data(WordRole).toString()) {
            return;
        }
        model->setData(index, word, WordRole);
        model->setData(index, ChannelListEditor::titleOf(word), Qt::DisplayRole);
        m_editor->markEdited();
        // Later, because the table still works on its items.
        QMetaObject::invokeMethod(
            m_editor, [editor = m_editor] { editor->completeEntry(); }, Qt::QueuedConnection);
    }

private:
    ChannelListEditor *m_editor;
};

QString ChannelListEditor::titleOf(const QString &word)
{
    bool ok = false;
    const EnumHelper::InputOutputType type = EnumHelper::toInputOutputType(word, &ok);
    const auto *title = std::ranges::find(titles, type, &UseTitle::type);
    return ok && title != std::end(titles) ? LocalizationHelper::coreString(QString::fromLatin1(title->title))
                                           : word;
}

void ChannelListEditor::createFields()
{
    m_table = new QTableWidget(0, ColumnCount, this);
    m_table->setHorizontalHeaderLabels({LocalizationHelper::coreString(u"Channel"_s),
                                        LocalizationHelper::coreString(u"Use"_s),
                                        LocalizationHelper::coreString(u"Used by"_s)});
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(Theme::fieldHeight(this));
    m_table->horizontalHeader()->setSectionResizeMode(UserColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->setItemDelegateForColumn(UseColumn, new ChannelUseDelegate(this));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed
                             | QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
    addField(m_table, {}, 1);
    m_watch = new ModelWatch(
        [](const DesignerProperty &property) {
            return property.id() == "channel"_L1
                   || property.parentObject()->className() == Configuration::kindName();
        },
        this);
    connect(m_watch, &ModelWatch::changed, this, [this] {
        if (!hasEntry()) {
            showRow(); // other users of the channels
        }
    });
}

QString ChannelListEditor::channelTitle(int channel) const
{
    return LocalizationHelper::coreString(u"Channel %1"_s).arg(channel);
}

void ChannelListEditor::showRow()
{
    const QStringList words = row().isMixed ? QStringList() : ChannelList(row().value).words();
    const int current = m_table->currentRow();
    m_table->setRowCount(int(words.size()));
    for (int i = 0; i < int(words.size()); ++i) {
        const bool isFixed = words.at(i) == wordOf(EnumHelper::UNAVAILABLE) || row().isReadOnly;
        const QStringList users = usersOf(i + 1);
        const QString texts[] = {channelTitle(i + 1), titleOf(words.at(i)), users.join(u", "_s)};
        for (int column = 0; column < ColumnCount; ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
            flags.setFlag(Qt::ItemIsEditable, column == UseColumn && !isFixed);
            item->setFlags(flags);
            item->setToolTip(texts[column]);
            m_table->setItem(i, column, item);
        }
        m_table->item(i, UseColumn)->setData(WordRole, words.at(i));
    }
    m_table->resizeColumnToContents(ChannelColumn);
    m_table->setColumnWidth(ChannelColumn, m_table->columnWidth(ChannelColumn) + Theme::margin);
    m_table->setColumnWidth(UseColumn,
                            fontMetrics().horizontalAdvance(u"Not available___"_s) + Theme::margin);
    m_table->setCurrentCell(std::min(current, int(words.size()) - 1), UseColumn);
    if (configuration()) {
        m_watch->follow(configuration()->project());
    }
    const int rows = std::clamp(int(words.size()), fewestRows, mostRows);
    const int height = rows * Theme::fieldHeight(this) + m_table->horizontalHeader()->sizeHint().height()
                       + 2 * m_table->frameWidth();
    if (m_table->maximumHeight() != height) {
        m_table->setFixedHeight(height);
        emit heightChanged();
    }
}

PropertyEditor::Entry ChannelListEditor::entryFor(const DesignerProperty &) const
{
    QStringList words;
    for (int i = 0; i < m_table->rowCount(); ++i) {
        words.append(m_table->item(i, UseColumn)->data(WordRole).toString());
    }
    return {words.join(u", "_s), {}};
}

const Configuration *ChannelListEditor::configuration() const
{
    const SharedProperty first = firstProperty();
    return !first ? nullptr : kindCast<Configuration>(first->parentObject());
}

QStringList ChannelListEditor::elementsOn(const QString &className, int channel) const
{
    QStringList paths;
    const Project *project = configuration() ? configuration()->project() : nullptr;
    if (!project) {
        return paths;
    }
    for (const DesignerObject *screen : project->screens()->listItems()) {
        const ElementIndex &index = static_cast<const Screen *>(screen)->elementIndex();
        for (const DesignerObject *element : index.withChannel(className, QString::number(channel))) {
            paths.append(element->objectPath());
        }
    }
    return paths;
}

QList<EnumHelper::InputOutputType> DigitalIOEditor::uses() const
{
    QList<InputOutputType> uses{EnumHelper::UNUSED, EnumHelper::INPUT, EnumHelper::OUTPUT};
    if (configuration() && isOn(configuration()->enableRS485())) {
        uses.append(EnumHelper::DIRECTION);
    }
    return uses;
}

QStringList DigitalIOEditor::usersOf(int channel) const
{
    QStringList users = elementsOn(u"DigitalInputOutput"_s, channel);
    if (channel == RS485Lines::digitalChannel && configuration()
        && linesOf(*configuration()).holds(RS485Lines::digitalLine)) {
        users.append(LocalizationHelper::coreString(u"RS485 line %1"_s).arg(RS485Lines::digitalLine));
    }
    return users;
}

QList<EnumHelper::InputOutputType> SerialCOMPortsEditor::uses() const
{
    return {EnumHelper::UNUSED, EnumHelper::COMTYPE};
}

QString SerialCOMPortsEditor::channelTitle(int channel) const
{
    return LocalizationHelper::coreString(u"COM %1"_s).arg(channel);
}

QStringList SerialCOMPortsEditor::usersOf(int channel) const
{
    return elementsOn(u"SerialCOMPort"_s, channel);
}

QList<EnumHelper::InputOutputType> SerialRS485Editor::uses() const
{
    return {EnumHelper::UNUSED, EnumHelper::RECEIVE, EnumHelper::SEND, EnumHelper::DIRECTION};
}

QString SerialRS485Editor::channelTitle(int channel) const
{
    return LocalizationHelper::coreString(u"Line %1"_s).arg(channel);
}

QStringList SerialRS485Editor::usersOf(int channel) const
{
    const Configuration *model = configuration();
    if (!model || !model->sharesRS485Pins()) {
        return {};
    }
    const auto useOfPin = [](const SharedProperty &list, int pin, const QString &english) {
        const QString word = ChannelList(list->valueString()).words().value(pin - 1);
        return word.isEmpty() || word == wordOf(EnumHelper::UNUSED)
                   ? QStringList()
                   : QStringList{LocalizationHelper::coreString(english).arg(QString::number(pin),
                                                                             titleOf(word).toLower())};
    };
    if (channel <= RS485Lines::pwmLines) {
        return useOfPin(model->pwmOutputs(), channel, u"PWM channel %1 (%2)"_s)
               + elementsOn(u"PwmOutput"_s, channel);
    }
    return channel == RS485Lines::digitalLine
               ? useOfPin(model->digitalInputOutputs(), RS485Lines::digitalChannel,
                          u"digital channel %1 (%2)"_s)
                     + elementsOn(u"DigitalInputOutput"_s, RS485Lines::digitalChannel)
               : QStringList();
}

QList<EnumHelper::InputOutputType> SPIChipSelectEditor::uses() const
{
    return {EnumHelper::UNUSED, EnumHelper::CSPIN};
}

QString SPIChipSelectEditor::channelTitle(int channel) const
{
    return LocalizationHelper::coreString(u"Pin %1"_s).arg(channel);
}

QStringList SPIChipSelectEditor::usersOf(int) const
{
    return {};
}

} // namespace Halvane::Corvex::Designer
