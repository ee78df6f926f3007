// SPDX-License-Identifier: MIT
#include <algorithm>

#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/views/tree/RowModel.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Role;

constexpr int kImage = RowParts::kImage;
constexpr int kGap = RowParts::kGap;
constexpr int kMargin = 6;

struct ItemImage {
    const char* item;
    const char* icon;
    std::optional<Role> colour{};
};

constexpr ItemImage kCategoryImages[] = {{Item::kRenameCategory, "rename"},
                                         {Item::kAddVoyage, "add"},
                                         {Item::kAscending, "sort-up"},
                                         {Item::kDescending, "sort-down"},
                                         {Item::kSort, "sort"},
                                         {Item::kCategoryNoRemark, "remark"},
                                         {Item::kCategoryRemark, "remark-full"},
                                         {Item::kDeleteCategory, "delete"}};
constexpr ItemImage kVoyageImages[] = {{Item::kPortCalls, "portcalls"},
                                       {Item::kConsumption, "consumption"},
                                       {Item::kNoonReport, "noon"},
                                       {Item::kAisOff, "ais"},
                                       {Item::kAisOn, "ais-on", Role::Accent},
                                       {Item::kModify, "modify"},
                                       {Item::kVoyageNoRemark, "remark"},
                                       {Item::kVoyageRemark, "remark-full"},
                                       {Item::kDeleteVoyage, "delete"}};
constexpr ItemImage kDeletedImages[] = {{Item::kRecoverCategory, "recover"},
                                        {Item::kClearCategory, "clear"},
                                        {Item::kRecoverVoyage, "recover"},
                                        {Item::kClearVoyage, "clear"}};

struct StatusImage {
    const char* value;
    const char* icon;
    Role colour;
};

constexpr StatusImage kStatusImages[] = {{ItemValue::kPlanImage, "plan", Role::Plan},
                                         {ItemValue::kUnderwayImage, "underway", Role::Underway},
                                         {ItemValue::kFinishImage, "finish", Role::Finished}};

QString Qt(const std::string& text) {
    return QString::fromStdString(text);
}

/// Places the visible items of one row.
class RowItems {
  public:
    RowItems(const TreeRowState& row, const QRect& rect, const TextWidth& width,
             const ItemCommand& hasCommand)
        : row_(row), rect_(rect), hasCommand_(hasCommand), parts_(width) {}

    const TreeItem* Visible(const char* name) const {
        const TreeItem* item = row_.items.Find(name);
        return item == nullptr || !item->visible ? nullptr : item;
    }
    QString Value(const char* item, const char* name) const {
        const TreeItem* found = Visible(item);
        if (found == nullptr) {
            return {};
        }
        const auto it = found->values.find(name);
        return it == found->values.end() ? QString() : Qt(it->second);
    }

    void Image(const ItemImage& image, const QRect& place) {
        if (Visible(image.item) != nullptr) {
            parts_.Image(ImageOf(image), place);
        }
    }
    /// The image of remarks at the end of a closed row, which tells those with remarks from the others; gives
    /// what is left of the line.
    int RemarksAtEnd(const char* item, int right) {
        if (Visible(item) == nullptr) {
            return right;
        }
        Image({item, "remark-full", Role::Secondary}, {right - kImage, rect_.top() + 3, kImage, kImage});
        return right - kImage - kGap;
    }
    template <std::size_t N>
    void Images(const ItemImage (&images)[N], QPoint corner) {
        std::vector<RowImage> shown;
        for (const ItemImage& image : images) {
            if (Visible(image.item) != nullptr) {
                shown.push_back(ImageOf(image));
            }
        }
        parts_.Images(shown, corner);
    }
    /// An image that tells something and cannot be clicked.
    void Sign(SubItem part) {
        part.kind = SubItemKind::Icon;
        parts_.Add(std::move(part));
    }
    int Link(const char* item, const QString& text, const TextBand& band) {
        return parts_.Write({item, SubItemKind::Link, {}, text, {}, text, true, hasCommand_(item)}, band);
    }
    int Name(const TextBand& band) {
        return parts_.Write({"name", SubItemKind::Name, {}, Qt(row_.text), {}, Qt(row_.text)}, band);
    }
    int Write(const char* item, SubItemKind kind, const QString& text, const TextBand& band) {
        return parts_.Write({item, kind, {}, text, {}, {}}, band);
    }

    int WidthOf(const QString& text, SubItemKind kind) const { return parts_.WidthOf(text, kind); }
    const QRect& Rect() const { return rect_; }
    const TreeRowState& Row() const { return row_; }
    std::vector<SubItem> Take() { return parts_.Take(); }

  private:
    RowImage ImageOf(const ItemImage& image) const {
        return {image.item, image.icon, Qt(Visible(image.item)->toolTip), hasCommand_(image.item),
                image.colour};
    }

    const TreeRowState& row_;
    QRect rect_;
    const ItemCommand& hasCommand_;
    RowParts parts_;
};

void LayoutCategory(RowItems& row, bool selected) {
    const QRect& r = row.Rect();
    constexpr int kLine = 31;
    row.Sign({.name = "fold",
              .rect = {r.left() + 4, r.top() + 7, 16, 16},
              .icon = row.Row().expanded ? "chevron-down" : "chevron-right"});
    const TreeItem* count = row.Visible(Item::kCount);
    const QString counted = count == nullptr ? QString() : Qt(count->text);
    const int whole = r.right() - kMargin;
    const int right = selected ? whole : row.RemarksAtEnd(Item::kCategoryRemark, whole);
    const int end =
        row.Name({r.left() + 24, r.top(), kLine, right - row.WidthOf(counted, SubItemKind::Count)});
    row.Write(Item::kCount, SubItemKind::Count, counted, {end, r.top(), kLine, right});
    if (selected) {
        row.Images(kCategoryImages, {r.left() + 20, r.top() + kLine + 1});
    }
}

/// The status at the row's right end; gives what is left to the name. Nothing while no status was drawn.
int LayoutStatus(RowItems& row, int right) {
    const std::string value = row.Value(Item::kStatus, ItemValue::kStatusImage).toStdString();
    if (value.empty()) {
        return right;
    }
    const auto* image = std::find_if(std::begin(kStatusImages), std::end(kStatusImages),
                                     [&value](const StatusImage& known) { return value == known.value; });
    const StatusImage& shown = image == std::end(kStatusImages) ? kStatusImages[0] : *image;
    right -= 16 + kGap;
    row.Sign({.name = Item::kStatus,
              .rect = {right + kGap, row.Rect().top() + 7, 16, 16},
              .icon = shown.icon,
              .toolTip = Qt(row.Visible(Item::kStatus)->toolTip),
              .colour = shown.colour});
    return right;
}

void LayoutVoyageHead(RowItems& row, bool selected) {
    const QRect& r = row.Rect();
    constexpr int kLine = 30;
    const QRect pin(r.left() + kMargin, r.top() + 3, kImage, kImage);
    row.Image({Item::kUnpinned, "pin"}, pin);
    row.Image({Item::kPinned, "pinned", Role::Accent}, pin);
    const int right = LayoutStatus(row, r.right() - kMargin);
    const int nameRight = selected ? right - kImage - kGap : row.RemarksAtEnd(Item::kVoyageRemark, right);
    const int end = row.Name({pin.right() + kGap, r.top(), kLine, nameRight});
    if (selected) {
        row.Image({Item::kRenameVoyage, "rename"}, {end + kGap, r.top() + 3, kImage, kImage});
    }
}

void LayoutVoyageDates(RowItems& row, int left, int right) {
    constexpr int kLine = 26;
    const int top = row.Rect().top() + 32;
    const auto value = [&row](const char* name) { return row.Value(Item::kDates, name); };
    if (row.Visible(Item::kDates) != nullptr) {
        const QString text = value(ItemValue::kSailingLabel) + u' ' + value(ItemValue::kSailDate) +
                             QStringLiteral("  ") + value(ItemValue::kEndingLabel) + u' ' +
                             value(ItemValue::kEndDate);
        row.Write(Item::kDates, SubItemKind::Text, text, {left, top, kLine, right});
    } else if (row.Visible(Item::kSetPortCall) != nullptr) {
        row.Link(Item::kSetPortCall, row.Value(Item::kSetPortCall, ItemValue::kSetPortCall),
                 {left, top, kLine, right});
    }
}

void LayoutVoyageVessel(RowItems& row, int left, int right) {
    constexpr int kLine = 26;
    const int top = row.Rect().top() + 60;
    int end = left;
    if (row.Visible(Item::kShipInfo) != nullptr) {
        const QString text = row.Value(Item::kShipInfo, ItemValue::kShipLabel) + u' ' +
                             row.Value(Item::kShipInfo, ItemValue::kShipName);
        end = row.Link(Item::kShipInfo, text, {left, top, kLine, right - 2 * (kImage + kGap)});
    } else if (row.Visible(Item::kAssignShip) != nullptr) {
        end = row.Link(Item::kAssignShip, row.Value(Item::kAssignShip, ItemValue::kAssignShip),
                       {left, top, kLine, right - kImage});
    }
    if (row.Visible(Item::kAlert) != nullptr) {
        row.Image({Item::kAlert, "alert", Role::Warning}, {end + kGap, top + 1, kImage, kImage});
        end += kImage + kGap;
    }
    row.Image({Item::kReplaceShip, "replace"}, {end + kGap, top + 1, kImage, kImage});
}

void LayoutDeleted(RowItems& row) {
    const QRect& r = row.Rect();
    const int right = r.right() - kMargin - 2 * (kImage + kGap);
    row.Name({r.left() + 24, r.top(), r.height(), right});
    row.Images(kDeletedImages, {right + kGap, r.top() + 3});
}

}  // namespace

std::vector<SubItem> LayoutRow(const TreeRowState& state, const QRect& rect, bool selected,
                               const TextWidth& width, const ItemCommand& hasCommand) {
    RowItems row(state, rect, width, hasCommand);
    if (state.style == kCategoryStyle) {
        LayoutCategory(row, selected);
        return row.Take();
    }
    if (state.style != kVoyageStyle) {
        LayoutDeleted(row);
        return row.Take();
    }
    LayoutVoyageHead(row, selected);
    if (selected) {
        const int left = rect.left() + kMargin + kImage + kGap;
        const int right = rect.right() - kMargin;
        LayoutVoyageDates(row, left, right);
        LayoutVoyageVessel(row, left, right);
        row.Images(kVoyageImages, {left - 4, rect.top() + 93});
    }
    return row.Take();
}

}  // namespace Tarvik::Seaplan
