// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "seaplan/panels/window/PanelEvents.h"

namespace Tarvik::Seaplan {

/// A panel with its window. Both are made when the panel is first asked for, and the panel hears the client's
/// events from then on. The main window owns the window, which may be gone before the panel is.
template <class Panel, class Window>
class PanelPlace {
  public:
    /// How the two are made.
    struct Recipe {
        std::function<Window*()> window;
        std::function<std::unique_ptr<Panel>(Window&)> panel;
    };

    explicit PanelPlace(Recipe recipe) : recipe_(std::move(recipe)) {}
    ~PanelPlace() {
        events_.reset();
        delete window_.data();
    }
    PanelPlace(const PanelPlace&) = delete;
    PanelPlace& operator=(const PanelPlace&) = delete;

    /// The panel, made with its window now when it is not there yet.
    Panel& Use() {
        if (panel_ == nullptr) {
            window_ = recipe_.window();
            panel_ = recipe_.panel(*window_);
            window_->Attach(panel_.get());
            panel_->ApplyLanguage();
            events_.emplace(*panel_);
        }
        return *panel_;
    }
    /// The panel, null while nobody has asked for it.
    Panel* Made() const { return panel_.get(); }
    /// Its window, null before the panel is made and after the main window is gone.
    Window* MadeWindow() const { return window_.data(); }

  private:
    Recipe recipe_;
    QPointer<Window> window_;
    std::unique_ptr<Panel> panel_;
    std::optional<PanelEvents<Panel>> events_;
};

}  // namespace Tarvik::Seaplan
