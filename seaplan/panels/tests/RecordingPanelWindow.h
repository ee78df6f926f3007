// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Seaplan {

/// What a panel's window was told, for the interface `View` of the panel.
template <class View>
class RecordingPanelWindow : public View {
  public:
    bool visible = false;
    Rect place{0, 0, 300, 200};
    std::string caption;
    bool changed = false;
    int textsApplied = 0;
    std::string help;           ///< "topic WxH" of the last request
    std::vector<bool> enabled;  ///< every change, in order

    bool Enabled() const { return enabled.empty() || enabled.back(); }
    bool IsVisible() const override { return visible; }
    void Show() override { visible = true; }
    void Hide() override { visible = false; }
    void Place(const Rect& screen) override { place = screen; }
    void MoveTo(Point corner) override {
        place = {corner.x, corner.y, corner.x + place.right - place.left,
                 corner.y + place.bottom - place.top};
    }
    Rect PlaceOnScreen() const override { return place; }
    void SetEnabled(bool on) override { enabled.push_back(on); }
    void* Handle() const override { return const_cast<RecordingPanelWindow*>(this); }
    void SetCaption(const std::string& text, bool mark) override {
        caption = text;
        changed = mark;
    }
    void ApplyTexts() override { ++textsApplied; }
    void RequestHelp(const std::string& topic, int width, int height) override {
        help = topic + " " + std::to_string(width) + "x" + std::to_string(height);
    }
};

}  // namespace Tarvik::Seaplan
