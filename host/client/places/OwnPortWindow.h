// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tarvik/skin/ToolWindow.h>

#include "host/ports/PlaceTable.h"

class QPushButton;
class QTableWidget;

namespace Tarvik::Client {

/// The list of the user's own ports, with what can be done to it.
class OwnPortWindow : public Skin::ToolWindow {
  public:
    /// What a person asks for; ports are told by their ids.
    struct Reports {
        std::function<void()> add;
        std::function<void(const std::string& id)> change;
        std::function<void(const std::string& id)> remove;
    };

    OwnPortWindow(QWidget* mainWindow, Reports reports);

    /// Shows these ports; the selection stays on the port that it was on, else it is the last one.
    void ShowPorts(const std::vector<Ports::Place>& ports);
    /// A line below the list; empty for none. A list without ports tells what to do first.
    void Tell(const QString& note);
    /// Texts in the language in force.
    void ApplyTexts();

  protected:
    void CloseAsked() override { hide(); }
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QPushButton* MakeButton(const char* name, const QKeySequence& key, const std::function<void()>& pressed);
    void MakeTable();
    void AddRow(const Ports::Place& port);
    void UpdateButtons();
    /// Id of the selected port, empty without one.
    std::string Chosen() const;

    Reports reports_;
    QTableWidget* table_;
    QLabel* note_;
    QPushButton* add_;
    QPushButton* change_;
    QPushButton* remove_;
    QToolButton* close_;
};

}  // namespace Tarvik::Client
