// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QString>
#include <string>

namespace Tarvik::Seaplan {

/// Draws icon `name` into a square in one colour; an unknown name draws nothing.
void PaintIcon(QPainter& painter, const QRect& place, const std::string& name, const QColor& colour);
/// The icon in the colours in force, with its disabled look.
QIcon MakeIcon(const std::string& name);
bool HasIcon(const std::string& name);

}  // namespace Tarvik::Seaplan
