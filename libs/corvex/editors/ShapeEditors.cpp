// SPDX-License-Identifier: MIT
#include "corvex/editors/ShapeEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/values/records/RangeInfo.h"
#include "corvex/values/records/ValueRangeInfo.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/KdNumberEdit.h"
#include "corvex/widgets/Theme.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

const QString lockId = u"keepRatio"_s;

//! "16 : 9" for whole numbers with a short ratio, otherwise "1.78 : 1".
QString ratioText(const QSizeF &size)
{
    constexpr double longest = 32;
    constexpr double hundred = 100;
    if (!(size.width() > 0 && size.height() > 0)) {
        return {};
    }
    const auto width = qint64(size.width());
    const auto height = qint64(size.height());
    const qint64 divisor = std::gcd(width, height);
    const bool isWhole = double(width) == size.width() && double(height) == size.height();
    const bool isShort = isWhole && double(std::max(width, height)) <= longest * double(divisor);
    const double ratio = std::round(hundred * size.width() / size.height()) / hundred;
    return isShort ? u"%1 : %2"_s.arg(width / divisor).arg(height / divisor)
                   : u"%1 : 1"_s.arg(ValueConversion::toString(ratio));
}

} // namespace

void SizeEditor::createFields()
{
    PairEditor::createFields();
    if (!hasLock()) {
        return;
    }
    m_lock = new QToolButton(this);
    m_lock->setAutoRaise(true);
    m_lock->setCheckable(true);
    m_lock->setFixedHeight(Theme::fieldHeight(this));
    m_lock->setFocusPolicy(Qt::TabFocus); // a click leaves the entry of a field open
    setLocked(false);
    addField(m_lock, LocalizationHelper::coreString(u"keep the ratio"_s));
    m_lock->setToolTip(LocalizationHelper::coreString(u"Width and height keep their ratio"_s));
    connect(m_lock, &QToolButton::clicked, this, [this](bool isLocked) {
        setLocked(isLocked);
        if (!locks().isEmpty()) {
            m_changesLock = true;
            completeEntry();
            m_changesLock = false;
        }
    });
    if (sheet()) {
        connect(sheet(), &PropertySheet::dataChanged, this, [this](const QModelIndex &first) {
            if (sheet()->row(first.row()).id == lockId) {
                showLock();
            }
        });
    }
}

//! The properties of the objects that say whether they keep their ratio.
QList<SharedProperty> SizeEditor::locks() const
{
    const int row = sheet() ? sheet()->rowOf(lockId) : -1;
    return row < 0 ? QList<SharedProperty>() : sheet()->properties(row);
}

void SizeEditor::showLock()
{
    const int row = sheet() ? sheet()->rowOf(lockId) : -1;
    if (m_lock && row >= 0) {
        setLocked(sheet()->row(row).value == "true"_L1);
    }
}

void SizeEditor::setLocked(bool isLocked)
{
    m_lock->setChecked(isLocked);
    m_lock->setIcon(IconSet::icon(isLocked ? IconSet::Lock : IconSet::Unlock));
}

void SizeEditor::showRow()
{
    PairEditor::showRow();
    showLock();
}

PlannedCommand SizeEditor::plan() const
{
    if (!m_changesLock) {
        return PairEditor::plan();
    }
    QList<RequestedValue> values;
    for (const SharedProperty &lock : locks()) {
        values.append({lock, ValueConversion::toString(m_lock->isChecked())});
    }
    return Commands::changeOf(values);
}

std::array<PairEditor::Part, 2> SizeEditor::parts() const
{
    return {Part{LocalizationHelper::coreString(u"width"_s), LocalizationHelper::coreString(u"W"_s)},
            Part{LocalizationHelper::coreString(u"height"_s), LocalizationHelper::coreString(u"H"_s)}};
}

std::optional<PairEditor::Pair> SizeEditor::read(const QString &stored) const
{
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(stored, &ok);
    return ok ? std::optional(Pair{size.width(), size.height()}) : std::nullopt;
}

QString SizeEditor::print(const Pair &pair, const QString &) const
{
    return ValueConversion::toString(QSizeF(pair[0], pair[1]));
}

QString SizeEditor::separator() const
{
    return u"x"_s;
}

void SizeEditor::adjust(const Pair &own, size_t place, Pair &changed) const
{
    if (m_lock && m_lock->isChecked() && own[place] > 0) {
        changed[1 - place] = own[1 - place] * changed[place] / own[place];
    }
}

void KeepRatioEditor::createFields()
{
    BooleanEditor::createFields();
    if (sheet()) {
        connect(sheet(), &PropertySheet::dataChanged, this, [this](const QModelIndex &first) {
            if (sheet()->row(first.row()).id == "size"_L1 && !hasEntry()) {
                showRow();
            }
        });
    }
}

QString KeepRatioEditor::note() const
{
    const int row = sheet() ? sheet()->rowOf(u"size"_s) : -1;
    return row < 0 ? QString() : ratioText(ValueConversion::toSize(sheet()->row(row).value));
}

std::array<PairEditor::Part, 2> PointEditor::parts() const
{
    return {Part{u"x"_s, u"X"_s}, Part{u"y"_s, u"Y"_s}};
}

std::optional<PairEditor::Pair> PointEditor::read(const QString &stored) const
{
    bool ok = false;
    const QPointF point = ValueConversion::toPoint(stored, &ok);
    return ok ? std::optional(Pair{point.x(), point.y()}) : std::nullopt;
}

QString PointEditor::print(const Pair &pair, const QString &) const
{
    return ValueConversion::toString(QPointF(pair[0], pair[1]));
}

QString PointEditor::separator() const
{
    return u", "_s; // a comma between digits is a decimal point
}

std::array<PairEditor::Part, 2> RangeEditor::parts() const
{
    return {Part{LocalizationHelper::coreString(u"minimum"_s), {}},
            Part{LocalizationHelper::coreString(u"maximum"_s), LocalizationHelper::coreString(u"to"_s)}};
}

std::optional<PairEditor::Pair> RangeEditor::read(const QString &stored) const
{
    bool ok = false;
    const RangeInfo range(stored, &ok);
    return ok ? std::optional(Pair{range.minimum(), range.maximum()}) : std::nullopt;
}

QString RangeEditor::print(const Pair &pair, const QString &) const
{
    return RangeInfo(pair[0], pair[1]).toString();
}

QString RangeEditor::separator() const
{
    return u" to "_s;
}

void ValueRangeEditor::showRow()
{
    RangeEditor::showRow();
    const ValueRangeInfo range(row().value);
    const QString limits = row().isMixed ? row().description
                                         : LocalizationHelper::coreString(u"From %1 to %2"_s)
                                               .arg(ValueConversion::toString(range.minValue()),
                                                    ValueConversion::toString(range.maxValue()));
    line(0)->setToolTip(limits);
    line(1)->setToolTip(limits);
}

std::array<PairEditor::Part, 2> ValueRangeEditor::parts() const
{
    return {Part{LocalizationHelper::coreString(u"first value"_s), {}},
            Part{LocalizationHelper::coreString(u"second value"_s), LocalizationHelper::coreString(u"to"_s)}};
}

std::optional<PairEditor::Pair> ValueRangeEditor::read(const QString &stored) const
{
    bool ok = false;
    const ValueRangeInfo range(stored, &ok);
    return ok ? std::optional(Pair{range.value1(), range.value2()}) : std::nullopt;
}

QString ValueRangeEditor::print(const Pair &pair, const QString &own) const
{
    ValueRangeInfo range(own);
    range.setValue1(pair[0]);
    range.setValue2(pair[1]);
    return range.toString();
}

} // namespace Halvane::Corvex::Designer
