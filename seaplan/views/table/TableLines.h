// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>
#include <string>
#include <vector>

#include <tarvik/skin/Palette.h>

namespace Tarvik::Seaplan {

/// A column of a table.
struct TableColumn {
    QString title;
    QString unit{};  ///< stands under the title, empty for none
    int width = 0;   ///< in pixels
    Qt::Alignment alignment = Qt::AlignLeft;
    bool cells = true;    ///< false for a column of images, where a click is none on a cell
    bool hidden = false;  ///< keeps its number, and is not to be seen
};

/// An image in a cell.
struct TableImage {
    std::string name;  ///< which a click reports
    std::string icon;  ///< of the skin
    bool enabled = true;
};

/// Images of a cell stand side by side from its left end on.
struct TableImages {
    std::vector<TableImage> images{};
    int edge = 14;  ///< of an image, in pixels
    int step = 20;  ///< from one to the next
};

/// A cell as it is drawn.
struct TableCell {
    QString text{};
    Skin::Role ground = Skin::Role::Panel;
    Skin::Role ink = Skin::Role::Text;
    bool bold = false;
    bool canBeFront = true;  ///< false where a line in front looks as any other
    int left = 3;            ///< gap before the text, in pixels
    int right = 3;           ///< gap behind it
    TableImages images{};
};

/// The lines of a table as one value, which does not change. Cells are made when they are asked for, so that
/// a long table costs no more than what is in sight; tips when the pointer rests.
class TableLines {
  public:
    virtual ~TableLines() = default;
    virtual int Count() const = 0;
    virtual TableCell CellAt(int line, int column) const = 0;
    /// What a cell tells beyond its text; empty for none.
    virtual QString TipAt(int line, int column) const = 0;
    /// What a cell says to a screen reader behind its title and text; mostly nothing.
    virtual QString WordsAt(int /*line*/, int /*column*/) const { return {}; }
    /// Whether a line is one of those that are copied, and no blank one or one of totals.
    virtual bool IsCopied(int line) const = 0;
    /// What an image does, or why it does nothing now.
    virtual QString ImageTipAt(int /*line*/, const std::string& /*image*/) const { return {}; }
};

}  // namespace Tarvik::Seaplan
