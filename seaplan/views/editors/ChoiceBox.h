// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QFrame>
#include <cstddef>
#include <functional>
#include <map>
#include <vector>

#include "seaplan/panels/window/ChoicePopup.h"
#include "seaplan/views/window/DialogTexts.h"

namespace Tarvik::Seaplan {

enum class ChoiceStep;

/// A popup of check or radio buttons. It has the keyboard while it is open: Up and Down walk its lines, Space
/// and Enter press one, Escape closes it.
class ChoiceBox final : public QFrame, public ChoicePopup, public DialogTexts {
  public:
    enum class Kind { Checks, Radios };
    /// Opens below `anchor`, one pixel apart, or at the pointer without one. `names` are the object names of
    /// the buttons.
    ChoiceBox(QWidget* parent, Kind kind, QWidget* anchor, std::map<TextId, const char*> names);
    /// Told of the line that was pressed.
    void SetReport(std::function<void(TextId)> chosen) { chosen_ = std::move(chosen); }
    void ApplySkin();

    void SetChoices(const std::vector<Choice>& choices) override;
    void Show(int width, int height) override;
    void Hide() override { hide(); }
    bool IsVisible() const override { return isVisible(); }

  protected:
    void ApplyClassTexts(QWidget& window) override;
    /// A press on the anchor closes the box and goes no further, or it would open it again.
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QAbstractButton* ButtonOf(TextId id);
    std::vector<QAbstractButton*> Lines() const;
    void Walk(const QAbstractButton* from, std::ptrdiff_t by);
    bool Step(QAbstractButton& line, ChoiceStep step);

    Kind kind_;
    QWidget* anchor_;
    std::map<TextId, const char*> names_;
    std::map<TextId, QAbstractButton*> buttons_;
    std::function<void(TextId)> chosen_;
};

}  // namespace Tarvik::Seaplan
