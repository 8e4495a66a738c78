// SPDX-License-Identifier: MIT
// A plug-in for another program that records whether any of its code runs.
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
