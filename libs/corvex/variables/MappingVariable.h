// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/DeviceVariable.h"

namespace Halvane::Corvex::Designer {

//! The Modbus registers of the device. See ModbusMap for the contents of its maps.
class CORVEX_EXPORT MappingVariable : public DeviceVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(MappingVariable, ProjectVariable)

public:
    const SharedProperty &coilMap() const { return m_coilMap; }
    const SharedProperty &discreteInputMap() const { return m_discreteInputMap; }
    const SharedProperty &inputRegMap() const { return m_inputRegMap; }
    const SharedProperty &holdingRegMap() const { return m_holdingRegMap; }
    const SharedProperty &virtualRegMap() const { return m_virtualRegMap; }
    const SharedProperty &virtualStringMap() const { return m_virtualStringMap; }

    //! The name of the screen whose port's map is being written to QML.
    void setQmlActiveScreen(const QString &screenName) { m_qmlActiveScreen = screenName; }
    const QString &qmlActiveScreen() const { return m_qmlActiveScreen; }
    //! Writes nothing: a port only names its map, and the device reads the maps from the zipped project.
    QString toQml(int indent) const override;

protected:
    using DeviceVariable::DeviceVariable;
    bool initializeProperties() override;

private:
    SharedProperty m_coilMap;
    SharedProperty m_discreteInputMap;
    SharedProperty m_inputRegMap;
    SharedProperty m_holdingRegMap;
    SharedProperty m_virtualRegMap;
    SharedProperty m_virtualStringMap;
    QString m_qmlActiveScreen;
};

} // namespace Halvane::Corvex::Designer
