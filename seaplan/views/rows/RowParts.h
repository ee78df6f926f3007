// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QMenu>
#include <QPainter>
#include <QRect>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tarvik/skin/Palette.h>

/// Rows that are drawn as named parts: texts, links and images with their places. One list of parts feeds
/// drawing, clicks, tool tips and keys alike.
namespace Tarvik::Seaplan {

enum class SubItemKind { Name, Count, Icon, Text, Link };

/// One named part of a row.
struct SubItem {
    std::string name;  ///< item name, or "fold" and "name" for the row itself
    SubItemKind kind = SubItemKind::Text;
    QRect rect{};
    QString text{};
    std::string icon{};
    QString toolTip{};
    bool clickable = false;
    bool enabled = true;                 ///< false for an item without a command
    std::optional<Skin::Role> colour{};  ///< of an image that is not drawn as the text is
};

/// An image of a row as its owner gives it.
struct RowImage {
    std::string name;
    std::string icon;  ///< of the skin
    QString toolTip;
    bool enabled = true;
    std::optional<Skin::Role> colour{};
};

/// Where a text may stand, in pixels of the list.
struct TextBand {
    int left = 0;
    int top = 0;
    int height = 0;
    int right = 0;
};

/// Width of a text of a kind in pixels.
using TextWidth = std::function<int(const QString&, SubItemKind)>;

/// Collects the parts of one row in reading order.
class RowParts {
  public:
    /// Edge of an image's place, and the gap behind it.
    static constexpr int kImage = 24;
    static constexpr int kGap = 4;

    explicit RowParts(const TextWidth& width) : width_(width) {}

    int WidthOf(const QString& text, SubItemKind kind) const { return width_(text, kind); }
    void Add(SubItem part) { parts_.push_back(std::move(part)); }
    /// An image that can be clicked.
    void Image(const RowImage& image, const QRect& place);
    /// Images side by side from a left top corner on.
    void Images(const std::vector<RowImage>& images, QPoint corner);
    /// `text` with its own width, cut at the band's right end; gives its own right end. A link is enabled as
    /// `part` says.
    int Write(SubItem part, const TextBand& band);
    std::vector<SubItem> Take() { return std::move(parts_); }

  private:
    const TextWidth& width_;
    std::vector<SubItem> parts_;
};

/// The clickable part at a point, null when there is none.
const SubItem* SubItemAt(const std::vector<SubItem>& parts, const QPoint& point);
/// The part at a point that has a tool tip, null when there is none.
const SubItem* TipAt(const std::vector<SubItem>& parts, const QPoint& point);
/// The parts that a click does something with.
std::vector<SubItem> EnabledOf(std::vector<SubItem> parts);

/// A menu of all that can be clicked and has a tip, as long as it is open. `clicked` hears of the choice.
QMenu* MakeRowMenu(QWidget* parent, const std::vector<SubItem>& parts,
                   const std::function<void(const std::string&)>& clicked);

/// How a row is drawn.
struct RowLook {
    QFont font;
    bool deleted = false;   ///< dim, the name struck out
    std::string focused{};  ///< name of the part that has the keyboard, empty for none
    /// Colour of all texts and images, on a ground of its own.
    std::optional<Skin::Role> ink{};
};

/// Font of a part in a row with this font.
QFont PartFont(const QFont& base, SubItemKind kind);
/// Draws one part in the colours in force.
void PaintPart(QPainter& painter, const SubItem& part, const RowLook& look);

}  // namespace Tarvik::Seaplan
