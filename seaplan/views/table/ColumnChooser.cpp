// SPDX-License-Identifier: MIT
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <utility>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/views/table/RowsDialog.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

ColumnChooser::ColumnChooser(QWidget* parent, const RowsPreview& preview, ChangeColumn change,
                             std::function<void(const RowsPreview&)> show)
    : QWidget(parent),
      change_(std::move(change)),
      show_(std::move(show)),
      columns_(new QComboBox(this)),
      kinds_(new QComboBox(this)) {
    columns_->setObjectName(QStringLiteral("pasteColumn"));
    kinds_->setObjectName(QStringLiteral("pasteKind"));
    Skin::Describe(columns_, ViewText(TextIds::IDS_VIEW_PASTECOLUMN));
    Skin::Describe(kinds_, ViewText(TextIds::IDS_VIEW_PASTEAS));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Skin::kGrid);
    for (QComboBox* box : {columns_, kinds_}) {
        box->setMinimumHeight(Skin::kControlHeight);
        auto* label = new QLabel(box->accessibleName(), this);
        label->setBuddy(box);
        line->addWidget(label);
        line->addWidget(box);
    }
    line->addStretch(1);
    for (const std::string& kind : preview.kinds) {
        // A title of the table may stand in two lines.
        kinds_->addItem(QString::fromStdString(kind).simplified());
    }
    Show(preview);
    connect(columns_, &QComboBox::currentIndexChanged, this, [this](int column) {
        const QSignalBlocker quiet(kinds_);
        kinds_->setCurrentIndex(static_cast<int>(taken_[static_cast<std::size_t>(column)]));
    });
    connect(kinds_, &QComboBox::currentIndexChanged, this, [this](int kind) { OnKind(kind); });
}

/// Columns are told by their place and by what they are taken for.
void ColumnChooser::Show(const RowsPreview& preview) {
    const QSignalBlocker quietColumns(columns_);
    const QSignalBlocker quietKinds(kinds_);
    const int column = std::max(columns_->currentIndex(), 0);
    taken_ = preview.taken;
    columns_->clear();
    for (std::size_t at = 0; at < taken_.size(); ++at) {
        columns_->addItem(
            QStringLiteral("%1: %2").arg(at + 1).arg(kinds_->itemText(static_cast<int>(taken_[at]))));
    }
    columns_->setCurrentIndex(column);
    kinds_->setCurrentIndex(static_cast<int>(taken_[static_cast<std::size_t>(column)]));
}

void ColumnChooser::OnKind(int kind) {
    const RowsPreview now =
        change_(static_cast<std::size_t>(columns_->currentIndex()), static_cast<std::size_t>(kind));
    Show(now);
    show_(now);
}

}  // namespace Tarvik::Seaplan
