// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/views/tree/RowLayout.h"

#include <QStandardItemModel>
#include <QTreeView>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QLineEdit;

namespace Tarvik::Seaplan {

/// The rows of the voyage tree as a window sees them; made by VoyageTreeView.
class VoyageTreeWidget;

/// Draws the voyage tree and reports presses and clicks. Tab walks the items of the selected row, Space and
/// Enter press them.
class VoyageTreeView : public QTreeView {
  public:
    explicit VoyageTreeView(QWidget* parent);
    ~VoyageTreeView() override;

    /// What the person does, set by the owner.
    struct Reports {
        std::function<void(TreeRow)> pressed;
        std::function<void(TreeRow, const std::string&)> clicked;
        std::function<void()> renameDone;
        std::function<void(const std::string&, int)> sortChosen;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    TreeRows& Rows();
    TreeWidget& Widget();
    std::vector<SubItem> PartsOf(TreeRow row) const;
    void ApplySkin() { viewport()->update(); }
    void SetEmptyHint(const QString& text) { emptyHint_ = text; }
    /// The item that has the keyboard in the selected row, empty when none has it.
    std::string FocusedPart() const;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}

  private:
    friend class VoyageTreeWidget;
    TreeRow rowAt(const QPoint& point) const;
    std::vector<SubItem> clickableOf(TreeRow row) const;
    void press(TreeRow row, bool onItem);
    void stepRow(int by);
    void relayout();
    void showSortPanel(const std::string& ci, int sortKey);

    QStandardItemModel* model_;
    std::unique_ptr<VoyageTreeWidget> rows_;
    Reports reports_;
    QLineEdit* rename_;
    QWidget* sortPanel_ = nullptr;
    QString emptyHint_;
    TreeRow pressedRow_ = kNoRow;
    std::string pressedItem_;
    int focusPart_ = -1;
};

}  // namespace Tarvik::Seaplan
