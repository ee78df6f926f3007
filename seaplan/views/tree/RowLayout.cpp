// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/RowLayout.h"

#include <QStringList>
#include <algorithm>

#include "seaplan/panels/tree/ItemNames.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kButton = 24;
constexpr int kMargin = 6;
constexpr int kGap = 4;

struct IconItem {
    const char* name;
    const char* icon;
};

constexpr IconItem kCategoryButtons[] = {{Item::kRenameCategory, "rename"},
                                         {Item::kAddVoyage, "add"},
                                         {Item::kAscending, "sort-up"},
                                         {Item::kDescending, "sort-down"},
                                         {Item::kSort, "sort"},
                                         {Item::kCategoryNoRemark, "remark"},
                                         {Item::kCategoryRemark, "remark-full"},
                                         {Item::kDeleteCategory, "delete"}};
constexpr IconItem kVoyageButtons[] = {
    {Item::kPortCalls, "portcalls"},   {Item::kConsumption, "consumption"},
    {Item::kNoonReport, "noon"},       {Item::kAisOff, "ais"},
    {Item::kAisOn, "ais-on"},          {Item::kModify, "modify"},
    {Item::kVoyageNoRemark, "remark"}, {Item::kVoyageRemark, "remark-full"},
    {Item::kDeleteVoyage, "delete"}};
constexpr IconItem kDeletedButtons[] = {{Item::kRecoverCategory, "recover"},
                                        {Item::kClearCategory, "clear"},
                                        {Item::kRecoverVoyage, "recover"},
                                        {Item::kClearVoyage, "clear"}};

QString Qt(const std::string& text) {
    return QString::fromStdString(text);
}

/// Collects the parts of one row.
class Builder {
  public:
    Builder(const TreeRowState& row, const QRect& rect, const TextWidth& width, const ItemCommand& hasCommand)
        : row_(row), rect_(rect), width_(width), hasCommand_(hasCommand) {}

    const TreeItem* Visible(const char* name) const {
        const auto it = row_.items.find(name);
        return it == row_.items.end() || !it->second.visible ? nullptr : &it->second;
    }

    void Icon(const char* name, const char* iconName, const QRect& place) {
        const TreeItem* item = Visible(name);
        if (item == nullptr) {
            return;
        }
        parts_.push_back(
            {name, SubItemKind::Icon, place, {}, iconName, Qt(item->toolTip), true, hasCommand_(name)});
    }

    template <std::size_t N>
    void Buttons(const IconItem (&items)[N], int left, int top) {
        for (const IconItem& item : items) {
            if (Visible(item.name) == nullptr) {
                continue;
            }
            Icon(item.name, item.icon, {left, top, kButton, kButton});
            left += kButton + kGap;
        }
    }

    /// Where a text may stand, in pixels of the tree.
    struct Band {
        int left = 0;
        int top = 0;
        int height = 0;
        int right = 0;
    };

    /// Text of its own width, cut at the band's right end; gives its own right end.
    int Write(const std::string& name, SubItemKind kind, const QString& text, const Band& band,
              const QString& toolTip = {}) {
        const int wide = std::max(0, std::min(width_(text, kind), band.right - band.left));
        const bool link = kind == SubItemKind::Link;
        parts_.push_back({name,
                          kind,
                          {band.left, band.top, wide, band.height},
                          text,
                          {},
                          toolTip,
                          link,
                          !link || hasCommand_(name)});
        return band.left + wide;
    }

    QString Value(const char* item, const char* name) const {
        const TreeItem* found = Visible(item);
        if (found == nullptr) {
            return {};
        }
        const auto it = found->values.find(name);
        return it == found->values.end() ? QString() : Qt(it->second);
    }

    int WidthOf(const QString& text, SubItemKind kind) const { return width_(text, kind); }
    const QRect& Rect() const { return rect_; }
    const TreeRowState& Row() const { return row_; }
    void Add(SubItem part) { parts_.push_back(std::move(part)); }
    std::vector<SubItem> Take() { return std::move(parts_); }

  private:
    const TreeRowState& row_;
    QRect rect_;
    const TextWidth& width_;
    const ItemCommand& hasCommand_;
    std::vector<SubItem> parts_;
};

void LayoutCategory(Builder& b, bool selected) {
    const QRect& r = b.Rect();
    constexpr int kLine = 31;
    b.Add({"fold",
           SubItemKind::Icon,
           {r.left() + 4, r.top() + 7, 16, 16},
           {},
           b.Row().expanded ? "chevron-down" : "chevron-right",
           {},
           false});
    const TreeItem* count = b.Visible(Item::kCount);
    const QString counted = count == nullptr ? QString() : Qt(count->text);
    const int right = r.right() - kMargin - b.WidthOf(counted, SubItemKind::Count);
    const int end = b.Write("name", SubItemKind::Name, Qt(b.Row().text),
                            {r.left() + 24, r.top(), kLine, right}, Qt(b.Row().text));
    b.Write(Item::kCount, SubItemKind::Count, counted, {end, r.top(), kLine, r.right() - kMargin});
    if (selected) {
        b.Buttons(kCategoryButtons, r.left() + 20, r.top() + kLine + 1);
    }
}

const char* StatusIcon(const QString& image) {
    if (image == QLatin1String(ItemValue::kUnderwayImage)) {
        return "underway";
    }
    return image == QLatin1String(ItemValue::kFinishImage) ? "finish" : "plan";
}

void LayoutVoyageHead(Builder& b, bool selected) {
    const QRect& r = b.Rect();
    constexpr int kLine = 30;
    const int left = r.left() + kMargin;
    const QRect pin(left, r.top() + 3, kButton, kButton);
    b.Icon(Item::kUnpinned, "pin", pin);
    b.Icon(Item::kPinned, "pinned", pin);
    const QString image = b.Value(Item::kStatus, ItemValue::kStatusImage);
    int right = r.right() - kMargin;
    if (!image.isEmpty()) {
        right -= 16 + kGap;
        const TreeItem* item = b.Visible(Item::kStatus);
        b.Add({Item::kStatus,
               SubItemKind::Icon,
               {right + kGap, r.top() + 7, 16, 16},
               {},
               StatusIcon(image),
               Qt(item->toolTip),
               false});
    }
    const int nameRight = selected ? right - kButton - kGap : right;
    const int end = b.Write("name", SubItemKind::Name, Qt(b.Row().text),
                            {pin.right() + kGap, r.top(), kLine, nameRight}, Qt(b.Row().text));
    if (selected) {
        b.Icon(Item::kRenameVoyage, "rename", {end + kGap, r.top() + 3, kButton, kButton});
    }
}

void LayoutVoyageDates(Builder& b, int left, int right) {
    constexpr int kLine = 26;
    const int top = b.Rect().top() + 32;
    if (b.Visible(Item::kDates) != nullptr) {
        const QString text = b.Value(Item::kDates, ItemValue::kSailingLabel) + u' ' +
                             b.Value(Item::kDates, ItemValue::kSailDate) + QStringLiteral("  ") +
                             b.Value(Item::kDates, ItemValue::kEndingLabel) + u' ' +
                             b.Value(Item::kDates, ItemValue::kEndDate);
        b.Write(Item::kDates, SubItemKind::Text, text, {left, top, kLine, right});
    } else if (b.Visible(Item::kSetPortCall) != nullptr) {
        const QString text = b.Value(Item::kSetPortCall, ItemValue::kSetPortCall);
        b.Write(Item::kSetPortCall, SubItemKind::Link, text, {left, top, kLine, right}, text);
    }
}

void LayoutVoyageVessel(Builder& b, int left, int right) {
    constexpr int kLine = 26;
    const int top = b.Rect().top() + 60;
    int end = left;
    if (b.Visible(Item::kShipInfo) != nullptr) {
        const QString text = b.Value(Item::kShipInfo, ItemValue::kShipLabel) + u' ' +
                             b.Value(Item::kShipInfo, ItemValue::kShipName);
        end = b.Write(Item::kShipInfo, SubItemKind::Link, text,
                      {left, top, kLine, right - 2 * (kButton + kGap)}, text);
    } else if (b.Visible(Item::kAssignShip) != nullptr) {
        const QString text = b.Value(Item::kAssignShip, ItemValue::kAssignShip);
        end = b.Write(Item::kAssignShip, SubItemKind::Link, text, {left, top, kLine, right - kButton}, text);
    }
    if (b.Visible(Item::kAlert) != nullptr) {
        b.Icon(Item::kAlert, "alert", {end + kGap, top + 1, kButton, kButton});
        end += kButton + kGap;
    }
    b.Icon(Item::kReplaceShip, "replace", {end + kGap, top + 1, kButton, kButton});
}

}  // namespace

int RowHeight(const TreeRowState& row, bool selected) {
    if (row.style == kCategoryStyle) {
        return selected ? 61 : 31;
    }
    if (row.style == kVoyageStyle) {
        return selected ? 123 : 30;
    }
    return row.parent == kNoRow ? 31 : 30;
}

std::vector<SubItem> LayoutRow(const TreeRowState& row, const QRect& rect, bool selected,
                               const TextWidth& width, const ItemCommand& hasCommand) {
    Builder b(row, rect, width, hasCommand);
    if (row.style == kCategoryStyle) {
        LayoutCategory(b, selected);
    } else if (row.style == kVoyageStyle) {
        LayoutVoyageHead(b, selected);
        if (!selected) {
            return b.Take();
        }
        const int left = rect.left() + kMargin + kButton + kGap;
        const int right = rect.right() - kMargin;
        LayoutVoyageDates(b, left, right);
        LayoutVoyageVessel(b, left, right);
        b.Buttons(kVoyageButtons, left - 4, rect.top() + 93);
    } else {
        const int left = rect.left() + 24;
        const int right = rect.right() - kMargin - 2 * (kButton + kGap);
        b.Write("name", SubItemKind::Name, Qt(row.text), {left, rect.top(), rect.height(), right},
                Qt(row.text));
        b.Buttons(kDeletedButtons, right + kGap, rect.top() + 3);
    }
    return b.Take();
}

QString AccessibleTextOf(const TreeRowState& row) {
    const auto unbounded = [](const QString&, SubItemKind) { return 0; };
    QStringList texts;
    QString status;
    for (const SubItem& part : LayoutRow(row, {}, true, unbounded, [](const std::string&) { return true; })) {
        if (part.kind != SubItemKind::Icon) {
            texts.append(part.text.trimmed());
        }
        if (part.name == Item::kStatus) {
            status = part.toolTip;
        }
    }
    if (!status.isEmpty()) {
        texts.append(status);
    }
    return texts.join(QStringLiteral(", "));
}

const SubItem* SubItemAt(const std::vector<SubItem>& parts, const QPoint& point) {
    const auto it = std::find_if(parts.begin(), parts.end(), [&](const SubItem& part) {
        return part.clickable && part.rect.contains(point);
    });
    return it == parts.end() ? nullptr : &*it;
}

}  // namespace Tarvik::Seaplan
