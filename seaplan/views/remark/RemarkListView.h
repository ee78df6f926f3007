// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>
#include <QStyledItemDelegate>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "seaplan/panels/remark/ClistCtrlViewEx.h"
#include "seaplan/views/rows/RowParts.h"

class QStandardItemModel;

namespace Tarvik::Seaplan {

/// Texts of the list's tips, in the language in force.
struct RemarkTips {
    QString unsaved;
    QString remove;
};

/// The parts of one row in its place: title and mark above, the time below, the image that deletes at the
/// right.
std::vector<SubItem> LayOutRemark(const RemarkRow& row, const QRect& place, const TextWidth& width,
                                  const RemarkTips& tips);

class RemarkListView;

/// Draws the rows of the list.
class RemarkDelegate final : public QStyledItemDelegate {
  public:
    explicit RemarkDelegate(RemarkListView* view);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    RemarkListView* view_;
};

/// The list of remarks on the screen. Its rows and the selected one are the panel's.
class RemarkListView final : public QListView {
  public:
    explicit RemarkListView(QWidget* parent);

    /// Told behind the event that they come from, as the panel may put a box up.
    struct Reports {
        std::function<void(int, std::uint32_t, const std::string&)> event;  ///< kind, position word, item
        std::function<void(int)> selected;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    void ShowRows(const std::vector<RemarkRow>& rows, int current);
    void ApplyTexts();
    /// Parts of a row in the coordinates of the viewport.
    std::vector<SubItem> PartsOf(const QModelIndex& index) const;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void TellEvent(int row, const std::string& item);

    QStandardItemModel* model_;
    std::vector<RemarkRow> rows_;
    Reports reports_;
    RemarkTips tips_;
    bool showing_ = false;  ///< the panel's own rows and selection are being put in
};

}  // namespace Tarvik::Seaplan
