// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

//! The enumerations of ANSI/ASHRAE 135-2020 (BACnet) that a project refers to, by their names in the standard
//! ("analog-input", "present-value").
namespace Halvane::Corvex::Common::BACnetTables {

struct CORVEX_COMMON_EXPORT Entry
{
    int number;
    QString name;
};

//! Clause 21, BACnetObjectType.
CORVEX_COMMON_EXPORT const QList<Entry> &objectTypes();
//! Clause 21, BACnetPropertyIdentifier, without "all", "optional" and "required", which stand for several
//! properties.
CORVEX_COMMON_EXPORT const QList<Entry> &properties();
//! Clause 20.2.1.4, the numbers of the application tags.
CORVEX_COMMON_EXPORT const QList<Entry> &dataTypes();

//! Clause 21, BACnetEngineeringUnits, the first 190.
CORVEX_COMMON_EXPORT const QList<Entry> &units();

//! The name as users read it: "Present Value" for "present-value", "COV Increment" for "cov-increment".
CORVEX_COMMON_EXPORT QString displayText(const QString &name);

} // namespace Halvane::Corvex::Common::BACnetTables
