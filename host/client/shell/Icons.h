// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace Tarvik::Client {

/// The client's own drawing `name` (a file of assets/icons), in one colour and sharp on any screen.
QIcon ColoredIcon(const QString& name, const QColor& color);

}  // namespace Tarvik::Client
