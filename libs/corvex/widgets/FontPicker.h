// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/PopupFrame.h"

#include <QFont>

#include <functional>

class QBoxLayout;
class QDoubleSpinBox;
class QLabel;
class QListView;
class QSortFilterProxyModel;
class QSpinBox;
class QToolButton;

namespace Halvane::Corvex::Designer {

class KdComboBox;
//! A popup that chooses a font: the family by a sample, size, style and spacings. Families that the device
//! lacks, as DesignerFactory::fontFamilies() says, have a mark.
class CORVEX_EXPORT FontPicker : public PopupFrame
{
    Q_OBJECT

public:
    //! What the user has changed, to be applied to a font.
    using Change = std::function<void(QFont &font)>;

    explicit FontPicker(QWidget *field);
    ~FontPicker() override;

    //! Shows the font without a signal.
    void setFont(const QFont &font);

    //! Whether the device is known to lack the family.
    static bool isMissing(const QString &family);

signals:
    //! \a isStep if it is one of many small changes, such as those of an arrow key.
    void changed(const Halvane::Corvex::Designer::FontPicker::Change &change, bool isStep);

private:
    void addFamilies(QBoxLayout *layout);
    void addSize(QBoxLayout *layout);
    void addStyles(QBoxLayout *layout);
    void addSpacings(QBoxLayout *layout);
    void chooseFamily(const QModelIndex &index, bool closes);
    void change(const Change &change, bool isStep);
    void showSample(const QFont &font);

    QFont m_shown;
    bool m_isShowing = false; //!< the fields change because a font is shown
    QSortFilterProxyModel *m_found;
    QListView *m_families;
    QSpinBox *m_size;
    KdComboBox *m_unit;
    QList<QToolButton *> m_styles;
    QDoubleSpinBox *m_letters;
    QDoubleSpinBox *m_words;
    QLabel *m_sample;
};

} // namespace Halvane::Corvex::Designer
