// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/editors/PropertyEditor.h"

class QListWidget;
class QListWidgetItem;
class QPushButton;
class QTableWidget;
class QToolButton;

namespace Halvane::Corvex::Designer {

class Configuration;
class ModelWatch;

//! The channel of a hardware element. A menu shows the channels that the project's device model has, and the
//! elements that use them; a channel that the model lacks is marked at once.
class CORVEX_EXPORT ChannelEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    //! Opens the menu.
    void choose();
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

    //! The channels that the model has for the edited elements, counted from 1.
    QList<int> channels() const;
    //! The use of a channel in the menu, without its users; empty in this class.
    virtual QString useOf(int channel) const;
    //! The device model of the project; null if it has none.
    const Configuration *configuration() const;

private:
    QStringList usersOf(int channel) const;
    void enterChannel(int channel);
    void step(int by);

    KdLineEdit *m_line = nullptr;
    QToolButton *m_choose = nullptr;
    QLabel *m_count = nullptr; //!< the number of channels
    ModelWatch *m_watch = nullptr;
};

//! A channel that is an input or an output; the menu says which.
class CORVEX_EXPORT DigitalChannelEditor : public ChannelEditor
{
    Q_OBJECT

public:
    using ChannelEditor::ChannelEditor;

protected:
    QString useOf(int channel) const override;
};

/*! The use of each channel of a device model, as a table: channel, use, and the elements or other functions
    that occupy it. Enter or a click opens the choice of uses.
*/
class CORVEX_EXPORT ChannelListEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using InputOutputType = Common::EnumHelper::InputOutputType;

    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; }
    //! What users call the use of a channel.
    static QString titleOf(const QString &word);

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

    //! The uses to choose from.
    virtual QList<InputOutputType> uses() const = 0;
    virtual QString channelTitle(int channel) const;
    //! Who else needs the channel, for the user.
    virtual QStringList usersOf(int channel) const = 0;
    //! The device model whose channels are edited; null without objects.
    const Configuration *configuration() const;
    //! The elements of that class on all screens with that channel, as paths.
    QStringList elementsOn(const QString &className, int channel) const;

private:
    friend class ChannelUseDelegate;

    QTableWidget *m_table = nullptr;
    ModelWatch *m_watch = nullptr;
};

class CORVEX_EXPORT DigitalIOEditor : public ChannelListEditor
{
    Q_OBJECT

public:
    using ChannelListEditor::ChannelListEditor;

protected:
    QList<InputOutputType> uses() const override;
    QStringList usersOf(int channel) const override;
};

class CORVEX_EXPORT SerialCOMPortsEditor : public ChannelListEditor
{
    Q_OBJECT

public:
    using ChannelListEditor::ChannelListEditor;

protected:
    QList<InputOutputType> uses() const override;
    QString channelTitle(int channel) const override;
    QStringList usersOf(int channel) const override;
};

//! The lines of the RS485 port, with the channels that share their pins.
class CORVEX_EXPORT SerialRS485Editor : public ChannelListEditor
{
    Q_OBJECT

public:
    using ChannelListEditor::ChannelListEditor;

protected:
    QList<InputOutputType> uses() const override;
    QString channelTitle(int channel) const override;
    QStringList usersOf(int channel) const override;
};

class CORVEX_EXPORT SPIChipSelectEditor : public ChannelListEditor
{
    Q_OBJECT

public:
    using ChannelListEditor::ChannelListEditor;

protected:
    QList<InputOutputType> uses() const override;
    QString channelTitle(int channel) const override;
    QStringList usersOf(int channel) const override;
};

//! The device model of a project: typed, or chosen from the installed models. Before anything changes, the
//! editor lists what the change will do, and the user confirms it.
class CORVEX_EXPORT DeviceModelEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    //! Opens the menu of models.
    void choose();

protected:
    void createFields() override;
    void showRow() override;
    PlannedCommand plan() const override;

private:
    //! What a change to the entered model will do, one line each.
    QStringList consequences() const;
    void ask();
    void closeQuestion();

    KdLineEdit *m_line = nullptr;
    QToolButton *m_choose = nullptr;
    QLabel *m_question = nullptr;
    QWidget *m_buttons = nullptr;
    QPushButton *m_confirm = nullptr;
    bool m_isConfirmed = false;
};

//! The models that can run a project of this one, as a list with check boxes.
class CORVEX_EXPORT CompatibleModelsEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; }

protected:
    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    QListWidget *m_list = nullptr;
    bool m_isShowing = false;
};

} // namespace Halvane::Corvex::Designer
