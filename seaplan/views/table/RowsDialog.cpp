// SPDX-License-Identifier: MIT
#include "seaplan/views/table/RowsDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/paste/PastedText.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kLeastLines = 8;
constexpr int kRowWidth = 35;
constexpr int kColumnWidth = 120;
constexpr std::size_t kFirstFigure = 2;  ///< column of a route's preview
constexpr int kLeastWidth = 480;
constexpr int kMostWidth = 1000;

/// What a command's dialog is called in the tests, and what it says.
struct DialogWords {
    const char* name;
    TextId title;
    TextId take;
    TextId leave;
};

const DialogWords& WordsOf(RowsPreview::Command command) {
    static constexpr DialogWords kPaste{"paste", TextIds::IDS_VIEW_PASTETITLE, TextIds::IDS_VIEW_PASTETAKE,
                                        TextIds::IDS_VIEW_PASTELEAVE};
    static constexpr DialogWords kAnew{"anew", TextIds::IDS_VIEW_ANEW, TextIds::IDS_VIEW_ANEWTAKE,
                                       TextIds::IDS_VIEW_ANEWLEAVE};
    static constexpr DialogWords kWays{"ways", TextIds::IDS_VIEW_WAYS, TextIds::IDS_VIEW_WAYSTAKE,
                                       TextIds::IDS_VIEW_WAYSLEAVE};
    return command == RowsPreview::Command::RouteAnew ? kAnew
           : command == RowsPreview::Command::Ways    ? kWays
                                                      : kPaste;
}

QString NameOf(const DialogWords& words, const char* part) {
    return QString::fromLatin1(words.name) + QString::fromLatin1(part);
}

/// The rows of a preview, each cell in the colour of what becomes of it.
class PreviewLines final : public TableLines {
  public:
    explicit PreviewLines(const RowsPreview& preview) : preview_(preview) {}
    int Count() const override { return static_cast<int>(preview_.rows.size()); }
    TableCell CellAt(int line, int column) const override {
        const RowsPreview::Cell& cell = At(line, column);
        TableCell shown;
        shown.text = QString::fromStdString(cell.text);
        shown.ink = cell.mark == RowsPreview::Mark::Unknown    ? Skin::Role::Error
                    : cell.mark == RowsPreview::Mark::Replaces ? Skin::Role::Warning
                    : cell.mark == RowsPreview::Mark::Ignored  ? Skin::Role::Secondary
                                                               : Skin::Role::Text;
        return shown;
    }
    QString TipAt(int line, int column) const override {
        const QString text = QString::fromStdString(At(line, column).text).toHtmlEscaped();
        const QString words = WordsAt(line, column);
        return words.isEmpty() ? text : text + QStringLiteral("<br>") + words;
    }
    QString WordsAt(int line, int column) const override {
        const RowsPreview::Mark mark = At(line, column).mark;
        const bool waypoints = preview_.command == RowsPreview::Command::Waypoints;
        const TextId unknown = waypoints ? TextIds::IDS_VIEW_PASTENOTREAD : TextIds::IDS_VIEW_PASTEUNKNOWN;
        return mark == RowsPreview::Mark::Unknown   ? ViewText(unknown)
               : mark == RowsPreview::Mark::Ignored ? ViewText(TextIds::IDS_VIEW_PASTEIGNORED)
                                                    : QString();
    }
    bool IsCopied(int) const override { return true; }

  private:
    const RowsPreview::Cell& At(int line, int column) const {
        return preview_.rows[static_cast<std::size_t>(line)][static_cast<std::size_t>(column)];
    }
    RowsPreview preview_;
};

void ShowRows(PanelTable& table, const RowsPreview& preview) {
    const bool numbered = preview.command != RowsPreview::Command::Ways;
    const bool pasted = numbered && preview.command != RowsPreview::Command::RouteAnew;
    std::vector<TableColumn> columns;
    columns.reserve(preview.titles.size());
    for (const std::string& title : preview.titles) {
        // What a route costs is compared digit below digit; what was pasted is shown as it came.
        columns.push_back(
            {.title = QString::fromStdString(title),
             .width = columns.empty() && numbered ? kRowWidth : kColumnWidth,
             .alignment = !pasted && columns.size() >= kFirstFigure ? Qt::AlignRight : Qt::AlignLeft});
    }
    table.ShowColumns(std::move(columns));
    table.ShowLines(std::make_shared<PreviewLines>(preview));
}

PanelTable* MakeTable(QWidget* parent, const RowsPreview& preview) {
    const DialogWords& said = WordsOf(preview.command);
    auto* table = new PanelTable(parent, "", kLeastLines);
    table->setObjectName(NameOf(said, "Table"));
    ShowRows(*table, preview);
    table->setAccessibleName(ViewText(said.title));
    // A text from elsewhere may have many columns.
    table->setMinimumWidth(std::min(table->minimumWidth(), kMostWidth));
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    return table;
}

QPushButton* MakeButton(QDialog& dialog, const QString& name, TextId text) {
    auto* button = new QPushButton(ViewText(text), &dialog);
    button->setObjectName(name);
    button->setMinimumHeight(Skin::kControlHeight);
    return button;
}

/// Fills a dialog with the preview; the answer is its table.
PanelTable* FillDialog(QDialog& dialog, const RowsPreview& preview) {
    const DialogWords& said = WordsOf(preview.command);
    dialog.setObjectName(NameOf(said, "Dialog"));
    dialog.setWindowTitle(ViewText(said.title));
    dialog.setMinimumWidth(kLeastWidth);
    PanelTable* table = MakeTable(&dialog, preview);
    auto* words = new QLabel(QString::fromStdString(preview.words), &dialog);
    words->setObjectName(NameOf(said, "Words"));
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    QPushButton* take = MakeButton(dialog, NameOf(said, "TakeButton"), said.take);
    QPushButton* leave = MakeButton(dialog, NameOf(said, "LeaveButton"), said.leave);
    take->setDefault(true);
    take->setProperty("primary", true);
    QObject::connect(take, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(leave, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(take);
    buttons->addWidget(leave);
    auto* rows = new QVBoxLayout(&dialog);
    rows->setSpacing(2 * Skin::kGrid);
    rows->addWidget(table, 1);
    rows->addWidget(words);
    rows->addLayout(buttons);
    take->setFocus();
    return table;
}

}  // namespace

bool AskRowsOver(QWidget& window, const RowsPreview& preview, const ChangeColumn& change) {
    QDialog dialog(&window);
    PanelTable* table = FillDialog(dialog, preview);
    if (!preview.kinds.empty()) {
        auto* words = dialog.findChild<QLabel*>(NameOf(WordsOf(preview.command), "Words"));
        auto* chooser = new ColumnChooser(&dialog, preview, change, [table, words](const RowsPreview& now) {
            ShowRows(*table, now);
            words->setText(QString::fromStdString(now.words));
        });
        static_cast<QVBoxLayout*>(dialog.layout())->insertWidget(0, chooser);
    }
    return Skin::RunDialog(dialog) == QDialog::Accepted;
}

std::optional<int> ChooseRowOver(QWidget& window, const RowsPreview& preview) {
    QDialog dialog(&window);
    PanelTable* table = FillDialog(dialog, preview);
    table->SetReports({{},
                       {},
                       [&dialog](KeyPress press, int, int) {
                           if (press.key != Key::Enter) {
                               return false;
                           }
                           dialog.accept();
                           return true;
                       },
                       {},
                       {}});
    QObject::connect(table, &QAbstractItemView::doubleClicked, &dialog, &QDialog::accept);
    table->PutFront(0, 0);
    table->setFocus();
    return Skin::RunDialog(dialog) == QDialog::Accepted ? std::optional(table->currentIndex().row())
                                                        : std::nullopt;
}

std::string ClipboardAsText() {
    // A character takes a byte or more, so that the limit of bytes holds for it
    // as well.
    return QApplication::clipboard()->text().left(static_cast<int>(kMostPastedBytes) + 1).toStdString();
}

}  // namespace Tarvik::Seaplan
