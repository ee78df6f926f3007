// SPDX-License-Identifier: MIT
#pragma once

#include <QStandardItemModel>
#include <QTreeView>
#include <functional>
#include <memory>
#include <vector>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/views/tree/RowModel.h"
#include "seaplan/views/tree/TreeAccessFactory.h"

namespace Tarvik::Seaplan {

class ChoiceBox;
class RenameField;
class TextBox;

/// The rows of the voyage tree as a window sees them; made by VoyageTreeView.
class VoyageTreeWidget;

/// Draws the voyage tree and reports presses, clicks and keys. Tab walks the items of the selected row.
class VoyageTreeView : public QTreeView {
  public:
    explicit VoyageTreeView(QWidget* parent);
    ~VoyageTreeView() override;

    /// What the person does, set by the owner.
    struct Reports {
        std::function<void(TreeRow, bool beside)> pressed;  ///< `beside` its items
        std::function<void(TreeRow, const std::string&)> clicked;
        /// A key while the keyboard is on a row and an item; false when it means nothing.
        std::function<bool(KeyPress, TreeRow, const std::string&)> key;
        std::function<void(const std::string&)> renameTyped;
        std::function<bool(Key)> renameKey;
        std::function<void()> renameDone;
        std::function<bool(const std::string&)> hasCommand;
        std::function<TreeRow(TreeRow)> menuKey;  ///< the row whose menu a key opens on this one
        std::function<void()> undo;
    };
    void SetReports(Reports reports);
    TreeRows& Rows();
    TreeWidget& Widget();
    TextBox& RenameBox();
    ChoiceBox& SortPopup();
    std::vector<SubItem> PartsOf(TreeRow row) const;
    void ApplySkin();
    /// Names and hints in the language in force; the rows' texts are the panel's.
    void ApplyTexts();
    /// The item that has the keyboard in the selected row, empty when none has it.
    std::string FocusedPart() const;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}

  private:
    friend class VoyageTreeWidget;
    friend class TreeReach;
    TreeRow RowAt(const QPoint& point) const;
    bool HasCommand(const std::string& item) const {
        return reports_.hasCommand && reports_.hasCommand(item);
    }
    std::vector<SubItem> LayOut(const TreeRowState& state, const QRect& rect, bool selected) const;
    /// The items that Tab walks: those of the selected row, none while it is put aside or folded away.
    std::vector<SubItem> ItemsInReach() const;
    void AddToMenu(QMenu* menu, TreeRow row);
    void Relayout();

    std::unique_ptr<VoyageTreeWidget> rows_;
    QStandardItemModel* model_;
    Reports reports_;
    RenameField* rename_;
    ChoiceBox* sortPopup_;
    QString emptyHint_;
    struct {
        TreeRow row = kNoRow;
        std::string item{};
        QPoint point{};
        bool beside = false;  ///< no item that does something
    } pressed_;
    int focusPart_ = -1;
    TreeAccessFactory access_;
};

}  // namespace Tarvik::Seaplan
