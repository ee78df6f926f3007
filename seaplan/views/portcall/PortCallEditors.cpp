// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallEditors.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PortCallView.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/editors/RowField.h"
#include "seaplan/views/table/PanelTable.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr CellEditor kEditors[] = {CellEditor::Port, CellEditor::Speed, CellEditor::Weather};
constexpr const char* kNames[] = {"portEditor", "speedEditor", "weatherEditor"};
constexpr int kMostRows = 6;

}  // namespace

PortCallEditors::PortCallEditors(QWidget& window, PanelTable& table)
    : QObject(&window),
      window_(window),
      table_(table),
      matches_(new QListWidget(&window)),
      purposes_(new DroppedList(window, table, "purposeList")),
      date_(*table.viewport(), window) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i] = new RowField(table.viewport());
        fields_[i]->setObjectName(QString::fromLatin1(kNames[i]));
        fields_[i]->hide();
        fields_[i]->installEventFilter(this);
    }
    matches_->setObjectName(QStringLiteral("portMatches"));
    matches_->hide();
    matches_->setFocusPolicy(Qt::NoFocus);
    purposes_->installEventFilter(this);
}

QLineEdit* PortCallEditors::Field(CellEditor editor) const {
    return fields_[static_cast<std::size_t>(std::find(std::begin(kEditors), std::end(kEditors), editor) -
                                            std::begin(kEditors))];
}

void PortCallEditors::Attach(CellEditing* panel) {
    panel_ = panel;
    for (const CellEditor editor : kEditors) {
        QObject::connect(Field(editor), &QLineEdit::textChanged, this, [this, editor](const QString& text) {
            if (!setting_) {
                panel_->OnTyped(editor, text.toStdString());
            }
        });
    }
    QObject::connect(matches_, &QListWidget::itemClicked, this,
                     [this](QListWidgetItem* item) { panel_->OnMatchPressed(matches_->row(item)); });
    QObject::connect(purposes_, &QListWidget::itemClicked, this,
                     [this](QListWidgetItem* item) { panel_->OnPurposeChosen(purposes_->row(item)); });
    date_.Attach(panel_->Picker());
}

void PortCallEditors::ApplyTexts() {
    Skin::Describe(Field(CellEditor::Port), ViewText(TextIds::IDS_VIEW_PORTEDITOR));
    Skin::Describe(Field(CellEditor::Speed), ViewText(TextIds::IDS_VIEW_SPEEDEDITOR));
    Skin::Describe(Field(CellEditor::Weather), ViewText(TextIds::IDS_VIEW_WEATHEREDITOR));
    Skin::Describe(purposes_, ViewText(TextIds::IDS_VIEW_PURPOSES));
    Skin::Describe(matches_, ViewText(TextIds::IDS_VIEW_RENAMEHINT));
    date_.Popup().ApplyTexts();
}

bool PortCallEditors::PortFieldHasFocus() const {
    return Field(CellEditor::Port)->hasFocus();
}

bool PortCallEditors::Holds(const QWidget& widget) const {
    const QWidget* const parts[] = {&table_, matches_, purposes_, &date_.Popup(), matchWindow_.data()};
    return std::any_of(std::begin(parts), std::end(parts), [&widget](const QWidget* part) {
        return part != nullptr && BelongsTo(*part, widget);
    });
}

/// Sets a field's text whole: the limit binds typing only.
void PortCallEditors::Put(QLineEdit& field, const std::string& text, int limit) {
    const QString shown = QString::fromStdString(text);
    setting_ = true;
    field.setMaxLength(std::max(limit, static_cast<int>(shown.size())));
    field.setText(shown);
    field.end(false);
    setting_ = false;
}

void PortCallEditors::OpenEditor(const OpenedEditor& opened) {
    QLineEdit& field = *Field(opened.editor);
    const QModelIndex cell = table_.model()->index(opened.row, opened.column);
    table_.scrollTo(cell.siblingAtColumn(ColPort));
    table_.PutCellInFront(cell);
    field.setGeometry(table_.EditorRect(opened.row, opened.column));
    Put(field, opened.text, static_cast<int>(opened.limit));
    field.show();
    field.raise();
    field.setFocus();
    if (opened.selectAll) {
        field.selectAll();
    }
}

void PortCallEditors::HideEditor(CellEditor editor) {
    QLineEdit& field = *Field(editor);
    if (field.isHidden()) {
        return;
    }
    const bool focused = field.hasFocus();
    field.hide();
    Put(field, {}, field.maxLength());
    if (focused) {
        table_.setFocus();
    }
}

void PortCallEditors::SetEditorText(CellEditor editor, const std::string& text) {
    QLineEdit& field = *Field(editor);
    Put(field, text, field.maxLength());
}

void PortCallEditors::ShowMatches(const std::vector<std::string>& names) {
    FillList(*matches_, names, -1);
    const QLineEdit* field = Field(CellEditor::Port);
    const QPoint place = field->mapTo(&window_, QPoint(0, field->height()));
    const int rows = std::min(static_cast<int>(names.size()), kMostRows);
    matches_->setGeometry(place.x(), place.y(), 200, rows * kDroppedRow + 2);
    matches_->show();
    matches_->raise();
}

void PortCallEditors::ShowMatchWindow(void* window) {
    constexpr int kBelowCellTop = 20;
    auto* shown = static_cast<QWidget*>(window);
    if (shown != matchWindow_) {
        HideMatchWindow();
    }
    QLineEdit* field = Field(CellEditor::Port);
    const QPoint place(0, kBelowCellTop);
    shown->move(shown->isWindow() ? field->mapToGlobal(place) : field->mapTo(shown->parentWidget(), place));
    shown->show();
    matchWindow_ = shown;
    field->end(false);
}

void PortCallEditors::HideMatchWindow() {
    if (matchWindow_ != nullptr) {
        matchWindow_->hide();
    }
    matchWindow_ = nullptr;
}

void PortCallEditors::OpenPurposes(int row, const std::vector<std::string>& texts, int current) {
    constexpr int kWidth = 160;
    const QRect cell = table_.EditorRect(row, ColPurpose);
    const QPoint below = table_.viewport()->mapToGlobal(cell.bottomLeft() + QPoint(0, 1));
    const int height = static_cast<int>(texts.size()) * kDroppedRow;
    purposes_->ShowList({below.x(), below.y(), below.x() + kWidth, below.y() + height}, texts, current);
    purposes_->FocusList(current);
}

void PortCallEditors::HidePurposes() {
    purposes_->HideList();
}

void PortCallEditors::PutPicker(int row, int column) {
    date_.Put(table_.EditorRect(row, column));
}

bool PortCallEditors::FieldEvent(CellEditor editor, QEvent& event) {
    switch (event.type()) {
        case QEvent::ShortcutOverride:
            panel_->OnCommandKey(PressOf(static_cast<QKeyEvent&>(event)));
            return false;
        case QEvent::KeyPress:
            return panel_->OnEditorKey(editor, PressOf(static_cast<QKeyEvent&>(event)));
        case QEvent::FocusOut:
            if (static_cast<QFocusEvent&>(event).reason() == Qt::BacktabFocusReason) {
                // No list of matches is reached so: the port editor is left too.
                panel_->OnPressedOutside();
            } else if (!LeftForItsMenu(*Field(editor), static_cast<QFocusEvent&>(event))) {
                panel_->OnEditorFocusLost(editor);
            }
            return false;
        default:
            return false;
    }
}

bool PortCallEditors::eventFilter(QObject* watched, QEvent* event) {
    // A window that is going hides an open editor, when there is nobody left to report it to.
    if (panel_ == nullptr || dynamic_cast<PortCallView*>(&window_) == nullptr) {
        return false;
    }
    if (watched == purposes_) {
        return event->type() == QEvent::KeyPress &&
               panel_->OnPurposeKey(PressOf(*static_cast<QKeyEvent*>(event)), purposes_->currentRow());
    }
    for (const CellEditor editor : kEditors) {
        if (watched == Field(editor)) {
            return FieldEvent(editor, *event);
        }
    }
    return false;
}

}  // namespace Tarvik::Seaplan
