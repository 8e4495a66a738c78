// SPDX-License-Identifier: MIT
// A plugin for another program, which leaves a mark when any of its code runs.
#include <QObject>
#include <QtPlugin>

namespace Halvane::Corvex::Test {

namespace {

const bool hasRun = qputenv("CORVEX_TEST_FOREIGN_CODE", "has run");

} // namespace

class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.ImageFormat/1.0")
};

} // namespace Halvane::Corvex::Test

#include "ForeignPlugin.moc"
