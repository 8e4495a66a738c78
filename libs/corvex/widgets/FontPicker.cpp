// SPDX-License-Identifier: MIT
#include "corvex/widgets/FontPicker.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/KdComboBox.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSpinBox>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QToolButton>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int popupWidth = 280;
constexpr int listHeight = 180;
constexpr int sampleHeight = 44;
constexpr int largestSize = 1000;
constexpr double largestSpacing = 100;

struct Style
{
    IconSet::Icon icon;
    const char *title;
    bool (QFont::*has)() const;
    void (QFont::*set)(bool);
};

constexpr Style styles[] = {
    {IconSet::Bold, "Bold", &QFont::bold, &QFont::setBold},
    {IconSet::Italic, "Italic", &QFont::italic, &QFont::setItalic},
    {IconSet::Underline, "Underline", &QFont::underline, &QFont::setUnderline},
    {IconSet::Overline, "Overline", &QFont::overline, &QFont::setOverline},
    {IconSet::Strikeout, "Strikeout", &QFont::strikeOut, &QFont::setStrikeOut},
};

//! The installed families and those of the device.
QStringList allFamilies()
{
    QStringList families = QFontDatabase::families();
    if (const DesignerFactory *factory = DesignerFactory::instance()) {
        families += factory->fontFamilies();
    }
    families.sort(Qt::CaseInsensitive);
    families.removeDuplicates();
    return families;
}

//! Draws a family in its own font.
class FamilyDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {0, option.fontMetrics.height() + 2 * Theme::gap};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QString family = index.data().toString();
        QStyleOptionViewItem item = option;
        item.widget = nullptr;
        initStyleOption(&item, index);
        // A font of signs cannot write its name.
        if (!QFontDatabase::writingSystems(family).contains(QFontDatabase::Symbol)) {
            item.font.setFamily(family);
        }
        if (FontPicker::isMissing(family)) {
            const QRect mark(option.rect.right() - IconSet::size - Theme::gap,
                             option.rect.center().y() - IconSet::size / 2, IconSet::size, IconSet::size);
            item.rect.setRight(mark.left() - Theme::gap);
            QStyledItemDelegate::paint(painter, item, index);
            IconSet::icon(IconSet::Warning)
                .paint(painter, mark, Qt::AlignCenter,
                       option.state & QStyle::State_Selected ? QIcon::Selected : QIcon::Normal);
            return;
        }
        QStyledItemDelegate::paint(painter, item, index);
    }

    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        const QFont font = option->font;
        QStyledItemDelegate::initStyleOption(option, index);
        option->font = font;
    }
};

QDoubleSpinBox *spacingBox(const QString &name, QWidget *parent)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setRange(-largestSpacing, largestSpacing);
    box->setDecimals(1);
    box->setSingleStep(0.5);
    box->setSuffix(u" px"_s);
    box->setKeyboardTracking(false);
    box->setAccessibleName(name);
    return box;
}

} // namespace

FontPicker::FontPicker(QWidget *field)
    : PopupFrame(field)
    , m_found(new QSortFilterProxyModel(this))
    , m_families(new QListView(this))
    , m_size(new QSpinBox(this))
    , m_unit(new KdComboBox(this))
    , m_letters(spacingBox(LocalizationHelper::coreString(u"Letter spacing"_s), this))
    , m_words(spacingBox(LocalizationHelper::coreString(u"Word spacing"_s), this))
    , m_sample(new QLabel(this))
{
    setAccessibleName(LocalizationHelper::coreString(u"Font"_s));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    layout->setSpacing(Theme::margin);
    setFixedWidth(popupWidth);
    addFamilies(layout);
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::gap);
    layout->addLayout(line);
    addSize(line);
    addStyles(line);
    addSpacings(layout);
    m_sample->setText(LocalizationHelper::coreString(u"Sample 0123.4 °C"_s));
    m_sample->setFixedHeight(sampleHeight);
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    layout->addWidget(m_sample);
}

FontPicker::~FontPicker() = default;

void FontPicker::addFamilies(QBoxLayout *layout)
{
    auto *search = new SearchLine(this);
    search->setView(m_families);
    search->addAction(IconSet::icon(IconSet::Search), QLineEdit::LeadingPosition);
    m_found->setSourceModel(new QStringListModel(allFamilies(), m_found));
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_families->setModel(m_found);
    m_families->setItemDelegate(new FamilyDelegate(m_families));
    m_families->setUniformItemSizes(true);
    m_families->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_families->setFixedHeight(listHeight);
    m_families->setAccessibleName(LocalizationHelper::coreString(u"Families"_s));
    layout->addWidget(search);
    layout->addWidget(m_families);
    connect(search, &SearchLine::textChanged, this, [this](const QString &text) {
        m_found->setFilterFixedString(text);
        m_families->setCurrentIndex(m_found->index(0, 0));
    });
    connect(search, &SearchLine::chosen, this,
            [this](const QModelIndex &index) { chooseFamily(index, true); });
    connect(m_families, &QListView::clicked, this,
            [this](const QModelIndex &index) { chooseFamily(index, false); });
    connect(m_families, &QListView::activated, this,
            [this](const QModelIndex &index) { chooseFamily(index, true); });
    connect(m_families->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) {
                QFont font = m_shown;
                font.setFamily(index.data().toString());
                showSample(font);
            });
}

void FontPicker::addSize(QBoxLayout *layout)
{
    m_size->setRange(1, largestSize);
    m_size->setKeyboardTracking(false);
    m_size->setAccessibleName(LocalizationHelper::coreString(u"Size"_s));
    m_unit->addItems({u"px"_s, u"pt"_s});
    m_unit->setAccessibleName(LocalizationHelper::coreString(u"Unit of the size"_s));
    layout->addWidget(m_size);
    layout->addWidget(m_unit);
    const auto set = [this](bool isStep) {
        const int size = m_size->value();
        const bool isPixels = m_unit->currentIndex() == 0;
        change(
            [size, isPixels](QFont &font) { isPixels ? font.setPixelSize(size) : font.setPointSize(size); },
            isStep);
    };
    connect(m_size, &QSpinBox::valueChanged, this, [set] { set(true); });
    connect(m_unit, &QComboBox::activated, this, [set] { set(false); });
}

void FontPicker::addStyles(QBoxLayout *layout)
{
    layout->addStretch(1);
    for (const Style &style : styles) {
        auto *button = new QToolButton(this);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIcon(IconSet::icon(style.icon));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolTip(LocalizationHelper::coreString(QString::fromLatin1(style.title)));
        button->setAccessibleName(button->toolTip());
        connect(button, &QToolButton::toggled, this, [this, set = style.set](bool isOn) {
            change([set, isOn](QFont &font) { (font.*set)(isOn); }, false);
        });
        layout->addWidget(button);
        m_styles.append(button);
    }
}

void FontPicker::addSpacings(QBoxLayout *layout)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::gap);
    for (QDoubleSpinBox *box : {m_letters, m_words}) {
        auto *label = new QLabel(box == m_letters ? LocalizationHelper::coreString(u"Letters"_s)
                                                  : LocalizationHelper::coreString(u"Words"_s),
                                 this);
        label->setToolTip(box->accessibleName());
        Theme::setTextColor(label, &Theme::muted);
        line->addWidget(label);
        line->addWidget(box, 1);
    }
    layout->addLayout(line);
    connect(m_letters, &QDoubleSpinBox::valueChanged, this, [this](double spacing) {
        change([spacing](QFont &font) { font.setLetterSpacing(QFont::AbsoluteSpacing, spacing); }, true);
    });
    connect(m_words, &QDoubleSpinBox::valueChanged, this, [this](double spacing) {
        change([spacing](QFont &font) { font.setWordSpacing(spacing); }, true);
    });
}

bool FontPicker::isMissing(const QString &family)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    return factory && !factory->fontFamilies().isEmpty()
           && !factory->fontFamilies().contains(family, Qt::CaseInsensitive);
}

void FontPicker::chooseFamily(const QModelIndex &index, bool closes)
{
    const QString family = index.data().toString();
    if (!family.isEmpty()) {
        change([family](QFont &font) { font.setFamily(family); }, false);
    }
    if (closes) {
        close();
    }
}

void FontPicker::change(const Change &change, bool isStep)
{
    if (!m_isShowing) {
        change(m_shown);
        showSample(m_shown);
        emit changed(change, isStep);
    }
}

void FontPicker::showSample(const QFont &font)
{
    QFont sample = font;
    if (sample.pixelSize() > sampleHeight * 2 / 3 || sample.pointSize() > sampleHeight / 2) {
        sample.setPixelSize(sampleHeight * 2 / 3);
    }
    m_sample->setFont(sample);
}

void FontPicker::setFont(const QFont &font)
{
    m_isShowing = true;
    m_shown = font;
    m_size->setValue(font.pixelSize() > 0 ? font.pixelSize() : font.pointSize());
    m_unit->setCurrentIndex(font.pixelSize() > 0 ? 0 : 1);
    for (size_t style = 0; style < std::size(styles); ++style) {
        m_styles.at(qsizetype(style))->setChecked((font.*styles[style].has)());
    }
    m_letters->setValue(font.letterSpacing());
    m_words->setValue(font.wordSpacing());
    const QModelIndexList found =
        m_found->match(m_found->index(0, 0), Qt::DisplayRole, font.family(), 1, Qt::MatchFixedString);
    if (!found.isEmpty() && m_families->currentIndex() != found.constFirst()) {
        m_families->setCurrentIndex(found.constFirst());
        m_families->scrollTo(found.constFirst(), QAbstractItemView::PositionAtCenter);
    }
    showSample(font);
    m_isShowing = false;
}

} // namespace Halvane::Corvex::Designer
