// SPDX-License-Identifier: MIT
#include "corvex/editors/CANVariableEditor.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editors/private/CanBitsView.h"
#include "corvex/editors/private/DbcDialog.h"
#include "corvex/editors/private/TermTable.h"
#include "corvex/project/Project.h"
#include "corvex/variables/CANVariable.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"

#include <QFileDialog>
#include <QFormLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;

constexpr int bitsPerByte = 8;
constexpr int dataBits = 64;

//! The columns that the picture shows.
enum Column { SpnColumn, UnitColumn, ByteColumn, BitColumn, LengthColumn };

//! The numbers of the group, in the order of its terms.
enum Place { PgnPlace, PriorityPlace, SourcePlace };

struct HeadField
{
    const char *title;
    int maximum;
    const char *initial;
};

constexpr HeadField headFields[] = {
    {"Parameter group (PGN)", 0x3FFFF, "0"},
    {"Priority", 7, "6"},
    {"Source address", 253, "0"},
};

int number(const TermColumn::Terms &entry, Column column)
{
    return entry.value(column).value().toInt();
}

CanBitsView::Part partOf(const TermColumn::Terms &entry)
{
    const int start = (number(entry, ByteColumn) - 1) * bitsPerByte + number(entry, BitColumn) - 1;
    return {u"SPN %1"_s.arg(entry.value(SpnColumn).value()), start, number(entry, LengthColumn)};
}

} // namespace

const std::vector<TermColumn> &CANVariableEditor::columns() const
{
    static const std::vector<TermColumn> table{
        {.title = "SPN", .kind = TermColumn::Integer, .initial = "0", .maximum = 524287, .counts = true},
        {.title = "Unit", .kind = TermColumn::Text},
        {.title = "Byte",
         .kind = TermColumn::Integer,
         .initial = "1",
         .minimum = 1,
         .maximum = 8,
         .counts = true},
        {.title = "Bit", .kind = TermColumn::Integer, .initial = "1", .minimum = 1, .maximum = 8},
        {.title = "Length", .kind = TermColumn::Integer, .initial = "8", .minimum = 1, .maximum = dataBits},
        {.title = "Offset", .kind = TermColumn::Number, .initial = "0"},
        {.title = "Minimum", .kind = TermColumn::Number, .initial = "0"},
        {.title = "Maximum", .kind = TermColumn::Number, .initial = "250"},
        {.title = "Factor", .kind = TermColumn::Number, .initial = "1"},
    };
    return table;
}

qsizetype CANVariableEditor::headSize() const
{
    return std::ssize(headFields);
}

void CANVariableEditor::createMore(QVBoxLayout *layout)
{
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(Theme::margin);
    form->setVerticalSpacing(Theme::gap);
    for (const HeadField &field : headFields) {
        const QString title = LocalizationHelper::coreString(QString::fromLatin1(field.title));
        m_head.append(prepareLine(new KdLineEdit(this), title));
        form->addRow(title, m_head.constLast());
    }
    layout->insertLayout(1, form);
    auto *import = new QPushButton(LocalizationHelper::coreString(u"Import…"_s));
    import->setToolTip(LocalizationHelper::coreString(u"Take a message of a CAN database (DBC)"_s));
    connect(import, &QPushButton::clicked, this, &CANVariableEditor::chooseFile);
    addTool(import);
    m_bits = new CanBitsView(this);
    m_bits->setAccessibleName(LocalizationHelper::coreString(u"Data bytes"_s));
    layout->addWidget(m_bits);
}

void CANVariableEditor::showMore()
{
    for (qsizetype place = 0; place < headSize(); ++place) {
        const QString text = table()->headTerm(place).value();
        m_head.at(place)->setShownText(row().isMixed    ? QString()
                                       : text.isEmpty() ? QString::fromLatin1(headFields[place].initial)
                                                        : text);
        m_head.at(place)->setEnabled(!row().isMixed);
    }
    m_bits->setVisible(!row().isMixed);
    QList<CanBitsView::Part> parts;
    for (const TermColumn::Terms &entry : table()->entries()) {
        parts.append(partOf(entry));
    }
    m_bits->setParts(parts);
}

QHash<int, QString> CANVariableEditor::conflicts() const
{
    QHash<int, QString> conflicts;
    std::array<int, dataBits> users{};
    const QList<TermColumn::Terms> &entries = table()->entries();
    for (int row = 0; row < int(entries.size()); ++row) {
        const CanBitsView::Part part = partOf(entries.at(row));
        if (part.start < 0 || part.start + part.length > dataBits) {
            conflicts.insert(row,
                             LocalizationHelper::coreString(u"The bits reach beyond the eight bytes."_s));
            continue;
        }
        for (int bit = part.start; bit < part.start + part.length; ++bit) {
            if (int &user = users[size_t(bit)]; user > 0) {
                const QString text =
                    LocalizationHelper::coreString(u"The rows %1 and %2 use the same bits."_s)
                        .arg(QString::number(user), QString::number(row + 1));
                conflicts.insert(row, text);
                conflicts.insert(user - 1, text);
            } else {
                user = row + 1;
            }
        }
    }
    return conflicts;
}

void CANVariableEditor::chooseFile()
{
    auto *dialog = new QFileDialog(this, LocalizationHelper::coreString(u"Import from a CAN Database"_s));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({LocalizationHelper::coreString(u"CAN databases (*.dbc *.DBC)"_s),
                            LocalizationHelper::coreString(u"All files (*)"_s)});
    connect(dialog, &QFileDialog::fileSelected, this, &CANVariableEditor::importFrom);
    dialog->open();
}

void CANVariableEditor::importFrom(const QString &file)
{
    QByteArray bytes;
    if (QString error; !Common::FileHelper::readFile(file, &bytes, &error)) {
        refuse(error);
        return;
    }
    const DbcFile database(bytes);
    if (database.messages().isEmpty()) {
        refuse(
            LocalizationHelper::coreString(
                u"%1 has no messages. Choose a CAN database: a text file with lines such as \"BO_ 2364540158 "
                "EEC1: 8 Engine\"."_s)
                .arg(file));
        return;
    }
    auto *dialog = new DbcDialog(
        database, [this](int pgn) { return othersWith(pgn); }, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        if (const DbcMessage *message = dialog->message()) {
            enterTerms(message->toMap(table()->headTerm(SourcePlace).value().toInt()).toTerms());
        }
    });
    if (sheet()) { // for other objects it would be wrong
        connect(sheet(), &PropertySheet::modelAboutToBeReset, dialog, &QDialog::reject);
    }
    dialog->open();
}

QStringList CANVariableEditor::othersWith(int pgn) const
{
    const SharedProperty first = firstProperty();
    const DesignerObject *own = !first ? nullptr : first->parentObject();
    QStringList names;
    if (own && own->project()) {
        for (const DesignerObject *other :
             own->project()->getListItemsInListPropertyOfType(u"variables"_s, CANVariable::kindName())) {
            const auto terms =
                valueAs<GeneralDataListProperty>(static_cast<const CANVariable *>(other)->parameterMap());
            if (other != own && terms.count() > 0 && terms.at(PgnPlace).value().toInt() == pgn) {
                names.append(other->getIdName());
            }
        }
    }
    return names;
}

PropertyEditor::Entry CANVariableEditor::entryFor(const DesignerProperty &property) const
{
    for (qsizetype place = 0; place < headSize(); ++place) {
        const HeadField &field = headFields[place];
        bool isNumber = false;
        const int entered = m_head.at(place)->text().trimmed().toInt(&isNumber, 0);
        if (!isNumber || entered < 0 || entered > field.maximum) {
            return {{},
                    LocalizationHelper::coreString(u"%1 takes a whole number from 0 to %2."_s)
                        .arg(LocalizationHelper::coreString(QString::fromLatin1(field.title)),
                             QString::number(field.maximum))};
        }
        table()->setHeadTerm(place, Info(Info::ConstantValue, Info::IntegerData, QString::number(entered)));
    }
    return TermTableEditor::entryFor(property);
}

} // namespace Halvane::Corvex::Designer
