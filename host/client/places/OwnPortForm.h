// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <tarvik/skin/EntryForm.h>

#include "host/client/places/OwnPortDraft.h"

namespace Tarvik::Client {

/// The small window in which one own port is added or changed. Below the fields stands what was understood of
/// the position.
class OwnPortForm : public Skin::EntryForm {
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

    OwnPortForm(QWidget* mainWindow, const Owner& owner);

    /// Fills the fields; one without an id is added, else changed. Does not show the window.
    void Open(const Ports::Place& port);
    void ApplyTexts() override;

  protected:
    void Commit() override;
    void Typed() override { ShowUnderstood(); }

  private:
    OwnPortForm(QWidget* mainWindow, const Owner& owner, QLabel* understood);
    OwnPortDraft Draft() const;
    void ShowUnderstood();

    Owner owner_;
    Ports::Place port_;  ///< as it was opened
    QLabel* understood_;
};

}  // namespace Tarvik::Client
