// SPDX-License-Identifier: MIT
// The headers that nearly every source of the tree includes; kept few, so that a change costs little.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>
