// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRect>
#include <initializer_list>
#include <string>
#include <vector>

#include <tarvik/Export.h>
#include <tarvik/skin/Palette.h>

/// Drawings go by the name of one that the SDK brings ("save", "close", …; IconNames) or by the path of an
/// SVG file or resource (":/mine/anchor.svg"). What a drawing names "currentColor" takes the colour asked
/// for.
namespace Tarvik::Skin {

/// Names of the drawings that the SDK brings, in order.
TARVIK_API std::vector<std::string> IconNames();
/// Whether the SDK brings a drawing of that name.
TARVIK_API bool HasIcon(const std::string& name);
/// Draws into a place in one colour; an unknown drawing draws nothing.
TARVIK_API void PaintIcon(QPainter& painter, const QRect& place, const std::string& name,
                          const QColor& colour);
/// The icon in the colours in force with its disabled look, drawn sharp at any size that is asked for;
/// `sizes` are those of its squares that it tells. A null icon for an unknown drawing.
TARVIK_API QIcon MakeIcon(const std::string& name, std::initializer_list<int> sizes = {kIconSize});

}  // namespace Tarvik::Skin
