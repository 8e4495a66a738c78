// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

//! Generates the QML of types for one build.
namespace Halvane::Corvex::Preview::TypeDocument {

//! A labelled box that accepts all properties and signals set for the class.
QString box(const QString &className, const QSet<QString> &properties);

//! A type derived from \a base, which has the properties and handlers \a members, with the missing ones of \a
//! properties.
QString derived(const QString &base, const QSet<QString> &members, const QSet<QString> &properties);

//! The document \a screen of the screens in all builds, with additional lists of elements.
QString screen(const QString &screen, const QSet<QString> &lists);

} // namespace Halvane::Corvex::Preview::TypeDocument
