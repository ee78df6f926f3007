// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

#include "seaplan/panels/tree/search/SearchView.h"
#include "seaplan/views/editors/ChoiceBox.h"

namespace Tarvik::Seaplan {

class TreeSearch;

/// The line above the tree in which is searched: a field, the ready questions, and how many answers there
/// are.
class SearchBar final : public QWidget, public SearchView {
  public:
    /// `tree` gets the keyboard when the panel says so.
    SearchBar(QWidget* parent, QWidget* tree);
    /// What is done goes to this panel, which outlives the line's use.
    void Attach(TreeSearch* panel);
    void ApplyTexts();
    void ApplySkin();

    void OpenSearch(const SearchState& state) override;
    void ShowSearch(const SearchState& state) override;
    void CloseSearch() override;
    void LeaveField() override;
    void AskForTime() override;

  protected:
    /// Keys of the field.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Report();

    QWidget* tree_;
    QLineEdit* field_;
    QToolButton* filterButton_;
    ChoiceBox* filters_;
    QLabel* report_;
    TreeSearch* panel_ = nullptr;
    SearchState state_;
    bool asked_ = false;
};

}  // namespace Tarvik::Seaplan
