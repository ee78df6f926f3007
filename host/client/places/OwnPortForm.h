// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <tarvik/skin/ToolWindow.h>

#include "host/client/places/OwnPortDraft.h"

class QLineEdit;
class QPushButton;

namespace Tarvik::Client {

/// The small window in which one own port is added or changed. Below the fields stands what was understood of
/// the position, and what is wrong; the window then stays open.
class OwnPortForm : public Skin::ToolWindow {
  public:
    /// What the window asks its owner.
    struct Owner {
        /// What is wrong with a draft of the port with this id, in words; empty when nothing is.
        std::function<std::optional<PortFault>(const OwnPortDraft& draft, const std::string& id)> check;
        /// Saves a port, one without an id as a new one. An empty text, or why it was not saved.
        std::function<QString(const Ports::Place& port)> save;
        /// The window has gone, saved or not.
        std::function<void()> closed;
    };

    OwnPortForm(QWidget* mainWindow, Owner owner);

    /// Fills the fields; one without an id is added, else changed. Does not show the window.
    void Open(const Ports::Place& port);
    /// Whether something was typed that is not saved.
    bool IsTouched() const { return Typed() != opened_; }
    /// Texts in the language in force.
    void ApplyTexts();
    void ApplySkin() override;

  protected:
    /// Nothing that was typed is lost without a question.
    void CloseAsked() override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct Row {
        QLabel* title = nullptr;
        QLineEdit* field = nullptr;
    };
    Row AddRow(QVBoxLayout& column, const char* name);
    void AddButtons();
    OwnPortDraft Typed() const;
    void Commit();
    void ShowUnderstood();
    void Tell(const QString& fault);

    Owner owner_;
    Ports::Place port_;    ///< as it was opened
    OwnPortDraft opened_;  ///< its texts
    Row name_;
    Row place_;
    QLabel* understood_;
    QLabel* fault_;
    QPushButton* save_;
    QPushButton* cancel_;
    QToolButton* close_;
};

}  // namespace Tarvik::Client
