// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

//! The enumerations of ANSI/ASHRAE 135-2020 (BACnet) that a project refers to, by the names that the standard
//! gives them ("analog-input", "present-value").
namespace Halvane::Corvex::Common::BACnetTables {

struct Entry
{
    int number;
    QString name;
};

//! Clause 21, BACnetObjectType.
const QList<Entry> &objectTypes();
//! Clause 21, BACnetPropertyIdentifier, without all, optional and required, which stand for several
//! properties.
const QList<Entry> &properties();
//! Clause 20.2.1.4, the numbers of the application tags.
const QList<Entry> &dataTypes();

//! Clause 21, BACnetEngineeringUnits, the first 190.
const QList<Entry> &units();

//! The name as a user reads it: "present-value" as "Present Value", "cov-increment" as "COV Increment".
QString displayText(const QString &name);

} // namespace Halvane::Corvex::Common::BACnetTables
