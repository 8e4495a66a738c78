// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

#include <QColor>

namespace Halvane::Corvex::Designer {

class ColorEdit;
class ColorPicker;
class ColorStrip;
class FieldButton;
class GradientBar;
class KdNumberEdit;
class ModelWatch;

//! The base of editors with a field for a color.
class CORVEX_EXPORT ColorFieldEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    //! Enters a color, such as one that was picked on the canvas.
    void enterColor(const QColor &color);

protected:
    //! Creates the field; \a part is that of its text.
    ColorEdit *createColorEdit(const QString &part = {});
    ColorEdit *colorEdit() const { return m_edit; }
    //! The colors that the picker offers first.
    virtual QList<QColor> usedColors() const;

private:
    void preparePicker(ColorPicker *picker);

    ColorEdit *m_edit = nullptr;
};

//! A color. For the color of a text, as the parameter "isTextColor" says, it shows when the text is hard to
//! read on what lies beneath it.
class CORVEX_EXPORT ColorEditor : public ColorFieldEditor
{
    Q_OBJECT

public:
    using ColorFieldEditor::ColorFieldEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void showContrast();

    ModelWatch *m_watch = nullptr; //!< only for the color of a text
};

//! The color of a screen: the picker offers the colors of the other screens first.
class CORVEX_EXPORT ScreenColorEditor : public ColorEditor
{
    Q_OBJECT

public:
    using ColorEditor::ColorEditor;

protected:
    QList<QColor> usedColors() const override;
};

//! Several colors: one is selected and can be changed, moved and removed.
class CORVEX_EXPORT ColorListEditor : public ColorFieldEditor
{
    Q_OBJECT

public:
    using ColorFieldEditor::ColorFieldEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void showSelected();
    void add();

    ColorStrip *m_strip = nullptr;
    FieldButton *m_add = nullptr;
    FieldButton *m_remove = nullptr;
};

//! The stops of a gradient: they can be dragged on a bar, added by a double click, and removed by the Delete
//! key or by dragging them away. The selected stop has a position and a color.
class CORVEX_EXPORT GradientStopsEditor : public ColorFieldEditor
{
    Q_OBJECT

public:
    using ColorFieldEditor::ColorFieldEditor;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void showSelected();

    GradientBar *m_bar = nullptr;
    KdNumberEdit *m_position = nullptr;
};

//! The width and the color of a border.
class CORVEX_EXPORT BorderEditor : public ColorFieldEditor
{
    Q_OBJECT

public:
    using ColorFieldEditor::ColorFieldEditor;

    bool canScrub() const override { return true; }
    void scrub(double steps) override;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    void takeSteps(double steps);

    KdNumberEdit *m_width = nullptr;
    int m_steps = 0; //!< added to the width of each object
};

} // namespace Halvane::Corvex::Designer
