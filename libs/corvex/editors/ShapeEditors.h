// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/ChoiceEditors.h"
#include "corvex/editors/PairEditor.h"

class QToolButton;

namespace Halvane::Corvex::Designer {

/*! Width and height, with a lock for their ratio. If the objects have a property "keepRatio", the lock shows
   and changes it; otherwise it belongs to the editor.
*/
class CORVEX_EXPORT SizeEditor : public PairEditor
{
    Q_OBJECT

public:
    using PairEditor::PairEditor;

protected:
    void createFields() override;
    void showRow() override;
    PlannedCommand plan() const override;

    std::array<Part, 2> parts() const override;
    std::optional<Pair> read(const QString &stored) const override;
    QString print(const Pair &pair, const QString &own) const override;
    QString separator() const override;
    void adjust(const Pair &own, size_t place, Pair &changed) const override;
    virtual bool hasLock() const { return true; }

private:
    QList<SharedProperty> locks() const;
    void showLock();
    void setLocked(bool isLocked);

    QToolButton *m_lock = nullptr;
    bool m_changesLock = false; //!< the entry is that of the lock
};

//! The size of a screen, which follows the device.
class CORVEX_EXPORT ScreenSizeEditor : public SizeEditor
{
    Q_OBJECT

public:
    using SizeEditor::SizeEditor;

protected:
    bool hasLock() const override { return false; }
};

//! Whether the proportions of an object are kept, with their ratio.
class CORVEX_EXPORT KeepRatioEditor : public BooleanEditor
{
    Q_OBJECT

public:
    using BooleanEditor::BooleanEditor;

protected:
    void createFields() override;
    QString note() const override;
};

class CORVEX_EXPORT PointEditor : public PairEditor
{
    Q_OBJECT

public:
    using PairEditor::PairEditor;

protected:
    std::array<Part, 2> parts() const override;
    std::optional<Pair> read(const QString &stored) const override;
    QString print(const Pair &pair, const QString &own) const override;
    QString separator() const override;
};

//! Minimum and maximum, checked while the user types.
class CORVEX_EXPORT RangeEditor : public PairEditor
{
    Q_OBJECT

public:
    using PairEditor::PairEditor;

protected:
    std::array<Part, 2> parts() const override;
    std::optional<Pair> read(const QString &stored) const override;
    QString print(const Pair &pair, const QString &own) const override;
    QString separator() const override;
    bool checksWhileTyping() const override { return true; }
};

//! The two ends of a scale, within the limits of the value.
class CORVEX_EXPORT ValueRangeEditor : public RangeEditor
{
    Q_OBJECT

public:
    using RangeEditor::RangeEditor;

protected:
    void showRow() override;
    std::array<Part, 2> parts() const override;
    std::optional<Pair> read(const QString &stored) const override;
    QString print(const Pair &pair, const QString &own) const override;
};

} // namespace Halvane::Corvex::Designer
