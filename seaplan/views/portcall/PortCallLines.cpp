// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallLines.h"

#include <optional>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/panels/portcall/PortCallState.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Role;

constexpr int kImagesWidth = 86;

struct RowImageEntry {
    const char* name;
    const char* icon;
    TextId tip;
    std::optional<TextId> whyNot;  ///< where it is disabled, none for a row without a port
    bool RowActions::*enabled;
};

constexpr RowImageEntry kImages[] = {
    {PortCallImage::kMoveUp, "up", TextIds::IDS_VIEW_MOVEUP, TextIds::IDS_VIEW_NOTUP, &RowActions::moveUp},
    {PortCallImage::kMoveDown, "down", TextIds::IDS_VIEW_MOVEDOWN, TextIds::IDS_VIEW_NOTDOWN,
     &RowActions::moveDown},
    {PortCallImage::kDelete, "delete", TextIds::IDS_VIEW_DELETEROW, TextIds::IDS_VIEW_NOTDELETE,
     &RowActions::remove},
    {PortCallImage::kRemark, "remark", TextIds::IDS_VIEW_REMARKROW, std::nullopt, &RowActions::remark}};

Qt::Alignment AlignmentOf(const PortCallColumnEntry& column) {
    return column.centred                    ? Qt::AlignHCenter
           : column.kind == CellKind::Number ? Qt::AlignRight
                                             : Qt::AlignLeft;
}

/// The unit on show of a quantity, empty for none.
std::string UnitOf(const PortCallState& state, UnitKind kind) {
    return kind == UnitKind::Speed      ? state.speedUnit
           : kind == UnitKind::Distance ? state.distanceUnit
           : kind == UnitKind::Time     ? state.timeUnit
                                        : std::string();
}

TableImages ImagesOf(const RowActions& can) {
    TableImages row;
    for (const RowImageEntry& image : kImages) {
        row.images.push_back({image.name, image.icon, can.*image.enabled});
    }
    return row;
}

Role GroundOf(RowClass look, bool totals) {
    return totals                          ? Role::Window
           : look == RowClass::Disabled    ? Role::History
           : look == RowClass::Highlighted ? Role::Highlight
                                           : Role::Panel;
}

}  // namespace

std::vector<TableColumn> PortCallColumnsOf(const PortCallState& state) {
    std::vector<TableColumn> columns;
    columns.reserve(kPortCallColumns.size() + 1);
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        columns.push_back({QString::fromStdString(TextOfKey(column.title)),
                           QString::fromStdString(UnitOf(state, column.unit)), column.width,
                           AlignmentOf(column)});
    }
    columns.push_back({.title = {}, .width = kImagesWidth, .cells = false});
    return columns;
}

TableCell PortCallLines::CellAt(int line, int column) const {
    const TableRow& row = table_.Rows()[static_cast<std::size_t>(line)];
    const bool totals = line == table_.RowCount();
    TableCell cell;
    cell.ground = GroundOf(row.look, totals);
    if (column == kPortCallImageColumn) {
        if (IsCopied(line)) {
            cell.images = ImagesOf(ActionsOf(table_, line));
        }
        return cell;
    }
    cell.text = QString::fromStdString(table_.Cell(line, column)).trimmed();
    cell.ink = column == ColPort && row.unknownPort ? Role::Error
               : IsStale(line, column)              ? Role::Warning
               : row.look == RowClass::Disabled     ? Role::Secondary
                                                    : Role::Text;
    cell.bold = column == ColOrder && totals;
    return cell;
}

bool PortCallLines::IsStale(int line, int column) const {
    const bool figure =
        column > ColPort && column < kPortCallColumnCount && !kPortCallColumns[column].entered;
    return figure && table_.Rows()[static_cast<std::size_t>(line)].stale &&
           !QString::fromStdString(table_.Cell(line, column)).trimmed().isEmpty();
}

QString PortCallLines::TipAt(int line, int column) const {
    if (column == kPortCallImageColumn) {
        return {};
    }
    if (column == ColPort && table_.Rows()[static_cast<std::size_t>(line)].unknownPort) {
        return ViewText(TextIds::IDS_VIEW_UNKNOWNPORT);
    }
    const QString text = QString::fromStdString(table_.Cell(line, column)).trimmed();
    const QString words = WordsAt(line, column);
    return words.isEmpty() ? text : text + u'\n' + words;
}

QString PortCallLines::WordsAt(int line, int column) const {
    return IsStale(line, column) ? ViewText(TextIds::IDS_VIEW_STALE) : QString();
}

QString PortCallLines::ImageTipAt(int line, const std::string& name) const {
    const RowActions can = ActionsOf(table_, line);
    for (const RowImageEntry& image : kImages) {
        if (name == image.name) {
            const bool tellsWhy = !(can.*image.enabled) && image.whyNot;
            // What keeps a row with a port from being removed keeps it from being moved as well.
            const bool belowBlank = can.remark && !can.remove;
            const TextId reason = belowBlank ? TextIds::IDS_VIEW_NOTDELETE : image.whyNot.value_or(image.tip);
            const std::string why = tellsWhy ? ": " + Text(reason) : std::string();
            return QString::fromStdString(Text(image.tip) + why);
        }
    }
    return {};
}

}  // namespace Tarvik::Seaplan
