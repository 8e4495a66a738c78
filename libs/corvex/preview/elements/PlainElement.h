// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/elements/Element.h"

#include <QVariant>

namespace Halvane::Corvex::Preview {

//! Ports and services that do nothing on a desktop; they only accept their properties.
class PlainElement : public Element
{
    Q_OBJECT
    Q_PROPERTY(int channel MEMBER m_channel)
    Q_PROPERTY(QString mapping MEMBER m_mapping)
    Q_PROPERTY(QVariantList commands MEMBER m_commands)
    Q_PROPERTY(QVariantList dataValues MEMBER m_dataValues)
    Q_PROPERTY(QVariantList bacNetObjectList MEMBER m_bacNetObjectList)
    Q_PROPERTY(QVariantList bacNetDevices MEMBER m_bacNetDevices)

public:
    using Element::Element;

private:
    int m_channel = 1;
    QString m_mapping;
    QVariantList m_commands;
    QVariantList m_dataValues;
    QVariantList m_bacNetObjectList;
    QVariantList m_bacNetDevices;
};

} // namespace Halvane::Corvex::Preview
