// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/FileObject.h"

#include <optional>
#include <utility>

namespace Halvane::Corvex::Common {
class ConfigurationInfo;
}

namespace Halvane::Corvex::Designer {

/*! One model of display panel: its screen, its channels and ports, its passwords, and the other models that
    can run its projects. The name of the object is the name of the model.

    The installed configurations are read-only. A project has a copy of the configuration of its model, in
    which the user assigns the channels.
*/
class CORVEX_EXPORT Configuration : public FileObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Configuration, FileObject)

public:
    QString baseName() const override;
    QString displayName() const override;
    //! "config.xml", in a folder with the model's name.
    QString createFileName() const override;
    QString createSubPath() const override;

    SharedProperty displayBrightness() const { return at(DisplayBrightness); }
    SharedProperty screenSize() const { return at(ScreenSize); }
    SharedProperty colorDepth() const { return at(ColorDepth); }
    SharedProperty analogInputs() const { return at(AnalogInputs); }
    SharedProperty alarmOutputs() const { return at(AlarmOutputs); }
    SharedProperty pwmFrequency() const { return at(PwmFrequency); }
    SharedProperty pwmOutputs() const { return at(PwmOutputs); }
    SharedProperty serialCOMPorts() const { return at(SerialCOMPorts); }
    SharedProperty canbusPorts() const { return at(CanbusPorts); }
    SharedProperty digitalInputOutputs() const { return at(DigitalInputOutputs); }
    SharedProperty enableRS485() const { return at(EnableRS485); }
    SharedProperty serialRS485Ports() const { return at(SerialRS485Ports); }
    SharedProperty enableSPIChipSelect() const { return at(EnableSPIChipSelect); }
    SharedProperty SPIChipSelect() const { return at(SpiChipSelect); }
    SharedProperty enablePassword() const { return at(EnablePassword); }
    SharedProperty password() const { return at(Password); }
    SharedProperty enableUpload() const { return at(EnableUpload); }
    SharedProperty uploadPassword() const { return at(UploadPassword); }
    SharedProperty compatibleModels() const { return at(CompatibleModels); }
    SharedProperty description() const { return at(Description); }
    SharedProperty url() const { return at(Url); }

    //! The number of Ethernet ports of an installed model, from "Ports.strings" in its folder; nothing if
    //! that file has no number. The configuration of a project does not know the number.
    std::optional<int> ethernetPorts() const;

    //! The model itself, followed by the models that can run its projects.
    QStringList allCompatibleModels() const;

    Common::ConfigurationInfo toConfigurationInfo() const;
    //! Ignores an invalid record.
    void setConfigurationInfo(const Common::ConfigurationInfo &info);

    //! Copies everything that the hardware of \a model determines. Channels that the user assigns (digital,
    //! PWM, RS485) keep their use if the model has as many of them.
    void updateFrom(const Configuration &model);

    //! Whether the RS485 lines of this model are pins of PWM channels 1 to 3 and of digital channel 8.
    bool sharesRS485Pins() const;

    //! The other properties, with their new values, that this object will change when \a property changes to
    //! \a value. An edit needs them for its undo.
    QList<std::pair<SharedProperty, QString>> followingChanges(const DesignerProperty &property,
                                                               const QString &value) const;

protected:
    explicit Configuration(QObject *parent = nullptr)
        : FileObject(parent)
    { }

    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;
    void finishReading() override;
    void afterFileFieldsChanged() override;

private:
    //! The positions of the properties in the object's list.
    enum Place {
        Name,
        DisplayBrightness,
        ScreenSize,
        ColorDepth,
        AnalogInputs,
        AlarmOutputs,
        PwmFrequency,
        PwmOutputs,
        SerialCOMPorts,
        CanbusPorts,
        DigitalInputOutputs,
        EnableRS485,
        SerialRS485Ports,
        EnableSPIChipSelect,
        SpiChipSelect,
        EnablePassword,
        Password,
        EnableUpload,
        UploadPassword,
        CompatibleModels,
        Description,
        Url,
    };
    struct Reaction;
    struct Visibility;
    struct Revalidation;
    struct ChannelField;
    static const QList<Reaction> &reactions();
    static const QList<Visibility> &visibilities();
    static const QList<Revalidation> &revalidations();
    static const QList<ChannelField> &channelFields();

    SharedProperty at(Place place) const;
    QString textOf(Place place) const { return at(place)->valueString(); }
    bool isOn(Place place) const;
    void write(Place place, const QString &value) { changePropertyValue(at(place), value); }

    bool isShown(const Visibility &visibility) const;
    //! Updates what depends on \a changed, or everything if it is null.
    void updateVisibility(const DesignerProperty *changed);
    void revalidateAfter(const DesignerProperty &changed);
    void localize();

    bool m_isLoaded = false;
};

} // namespace Halvane::Corvex::Designer
