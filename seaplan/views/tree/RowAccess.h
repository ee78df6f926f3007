// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPointer>
#include <map>
#include <string>

#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

/// What a row and an item of it have in common: a thing in the tree that can be pressed and has no window.
class PressableAccess : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    PressableAccess(VoyageTreeView& view, TreeRow row) : view_(&view), row_(row) {}

    TreeRow Row() const { return row_; }
    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    void setText(QAccessible::Text, const QString&) override {}
    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  protected:
    VoyageTreeView& View() const { return *view_; }
    QRect OnScreen(const QRect& inViewport) const;
    /// An action on the row, or on this item of it.
    void Do(const QString& action, const std::string& item);

  private:
    QPointer<VoyageTreeView> view_;
    TreeRow row_;
};

/// One row, named by all that it shows when it is open. A press does what a press beside its items does: a
/// category folds and unfolds, a voyage is selected and goes onto the chart.
class RowAccess final : public PressableAccess {
  public:
    using PressableAccess::PressableAccess;
    ~RowAccess() override;
    RowAccess(const RowAccess&) = delete;
    RowAccess& operator=(const RowAccess&) = delete;

    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text text) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::TreeItem; }
    QAccessible::State state() const override;
    void doAction(const QString& action) override;

  private:
    QAccessibleInterface* ItemAt(const std::string& item) const;

    mutable std::map<std::string, QAccessible::Id> items_;
};

/// One item of a row, named by its tip or its text; a press is a click on it, also while its row is not open.
class ItemAccess final : public PressableAccess {
  public:
    ItemAccess(VoyageTreeView& view, TreeRow row, std::string item)
        : PressableAccess(view, row), item_(std::move(item)) {}

    const std::string& Item() const { return item_; }
    bool isValid() const override { return PressableAccess::isValid() && Part().name == item_; }
    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text text) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::PushButton; }
    QAccessible::State state() const override;
    void doAction(const QString& action) override;

  private:
    SubItem Part() const;

    std::string item_;
};

}  // namespace Tarvik::Seaplan
