// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/RowModel.h"

#include <QStringList>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

QString AccessibleTextOf(const TreeRowState& row) {
    const auto unbounded = [](const QString&, SubItemKind) { return 0; };
    const auto every = [](const std::string&) { return true; };
    QStringList texts;
    QString status;
    bool remarks = false;
    for (const SubItem& part : LayoutRow(row, {}, true, unbounded, every)) {
        if (part.kind != SubItemKind::Icon) {
            texts.append(part.text.trimmed());
        }
        if (part.name == Item::kStatus) {
            status = part.toolTip;
        }
        remarks = remarks || part.name == Item::kCategoryRemark || part.name == Item::kVoyageRemark;
    }
    if (!status.isEmpty()) {
        texts.append(status);
    }
    if (remarks) {
        texts.append(ViewText(TextIds::IDS_VIEW_HASREMARKS));
    }
    return texts.join(QStringLiteral(", "));
}

}  // namespace

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::AccessibleTextRole) {
        return QStandardItemModel::data(index, role);
    }
    const TreeRowState* row = rows_.Row(QStandardItemModel::data(index, kRowRole).toInt());
    return row == nullptr ? QVariant() : QVariant(AccessibleTextOf(*row));
}

}  // namespace Tarvik::Seaplan
