// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/skin/ToolWindow.h>

class QPushButton;
class QTableWidget;

namespace Tarvik::Fleet {

/// The list of the user's vessels, with what can be done to it.
class FleetWindow : public Skin::ToolWindow {
  public:
    /// What a person asks for; `row` counts from 0 in the list on show.
    struct Reports {
        std::function<void()> add;
        std::function<void(int row)> change;
        std::function<void(int row)> remove;
        std::function<void()> import;
    };

    FleetWindow(QWidget* mainWindow, Reports reports);

    /// Shows these vessels; the selection stays on the vessel that it was on.
    void ShowVessels(const std::vector<Interface::FleetVessel>& vessels);
    /// One line or more below the list; empty for none. A list without vessels tells what to do first.
    void Tell(const QString& note);
    /// Texts in the language in force.
    void ApplyTexts();

  protected:
    void CloseAsked() override { hide(); }
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QPushButton* MakeButton(const char* name, const QKeySequence& key, const std::function<void()>& pressed);
    void MakeTable();
    void UpdateButtons();
    int Row() const;

    Reports reports_;
    std::vector<std::string> ids_;
    QTableWidget* table_;
    QLabel* note_;
    QPushButton* add_;
    QPushButton* change_;
    QPushButton* remove_;
    QPushButton* import_;
    QToolButton* close_;
};

}  // namespace Tarvik::Fleet
