// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <functional>

#include "seaplan/panels/texts/TextId.h"
#include "seaplan/views/editors/UndoButtons.h"

class QPushButton;
class QToolButton;

namespace Tarvik::Seaplan {

class ColumnKeeper;
class CPortCallPanelDlg;
class PanelTable;

struct PortCallState;

/// The commands below the table: save, clear, undo, redo, further ones in a menu, the questions, position
/// book, calculate. A button that is off tells why.
class PortCallButtons final : public QWidget {
  public:
    explicit PortCallButtons(QWidget* parent);

    struct Reports {
        std::function<void()> save;
        std::function<void()> clear;
        std::function<void()> book;
        std::function<void()> calculate;
        std::function<void()> undo;
        std::function<void()> redo;
        std::function<void()> whatIf;
        std::function<void(const QPoint&)> menu;  ///< at this point of the screen
    };
    void SetReports(const Reports& reports);
    void ShowState(const PortCallState& state);
    void ShowEdits(const UndoTexts& edits) { undo_->ShowTexts(edits); }
    void ApplySkin();

  private:
    QToolButton* MakeTool(const char* name);
    static void Set(QAbstractButton* button, bool on, TextId tip, TextId whyNot);

    QPushButton* save_;
    QPushButton* clear_;
    UndoButtons* undo_;
    QToolButton* menu_;
    QPushButton* whatIf_;
    QPushButton* book_;
    QPushButton* calculate_;
};

/// Opens the commands that the port calls have beside their buttons, on the cell in front, at a point of the
/// screen. Each tells its key.
void OpenPortCallMenu(PanelTable& table, CPortCallPanelDlg& panel, ColumnKeeper& columns, const QPoint& at);

}  // namespace Tarvik::Seaplan
