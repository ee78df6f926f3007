// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>

#include <tarvik/skin/ToolWindow.h>

#include "host/plugins/fleet/core/VesselDraft.h"

class QLineEdit;
class QPushButton;

namespace Tarvik::Fleet {

/// The small window in which one vessel is added or changed. What is wrong stands below the fields and the
/// window stays open.
class VesselForm : public Skin::ToolWindow {
  public:
    /// Saves a vessel; an empty text, or why it was not saved.
    using Save = std::function<QString(Interface::FleetVessel vessel)>;

    /// `closed` is called when the window has gone, saved or not.
    VesselForm(QWidget* mainWindow, Save save, std::function<void()> closed);

    /// Fills the fields; one without an id is added, else changed. Does not show the window.
    void Open(const Interface::FleetVessel& vessel);
    /// Texts in the language in force.
    void ApplyTexts();
    void ApplySkin() override;

  protected:
    void CloseAsked() override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    VesselDraft Typed() const;
    bool IsTouched() const;
    void Commit();
    void Tell(const QString& fault);

    static constexpr int kFields = 7;
    struct Row {
        QLabel* title = nullptr;
        QLineEdit* field = nullptr;
    };
    Save save_;
    std::function<void()> closed_;
    std::string id_;      ///< of the vessel that is changed
    VesselDraft opened_;  ///< as it was filled
    std::array<Row, kFields> rows_{};
    QLabel* fault_;
    QPushButton* saveButton_;
    QPushButton* cancel_;
    QToolButton* close_;
};

}  // namespace Tarvik::Fleet
