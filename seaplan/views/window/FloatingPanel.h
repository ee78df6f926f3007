// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <functional>
#include <string>

#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/texts/TextId.h"
#include "seaplan/panels/window/Rect.h"
#include "seaplan/views/window/DialogTexts.h"
#include "seaplan/views/window/KeptFocus.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

QRect ToQt(const Rect& rect);
/// Where a widget stands on the screen.
Rect OnScreen(const QWidget& widget);

/// What all floating panels have in common: help and close at the end of the caption, with F1 and Ctrl+W, and
/// the operations behind PanelWindow.
class FloatingPanel : public Skin::ToolWindow, public DialogTexts {
  public:
    /// Texts of the two buttons.
    struct Hints {
        TextId help{};
        TextId close{};
    };
    /// What the person does, set by the owner; a report that is not set is dropped.
    struct Reports {
        std::function<void()> help;
        std::function<void()> close;
        std::function<void()> surfacePressed;
        std::function<bool(const QKeyEvent&)>
            closes{};  ///< whether a key that no control has taken closes the window
    };

    FloatingPanel(QWidget* mainView, const QString& name, const Hints& hints);
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    void Raise();
    /// Hides the window; the keyboard goes back to the one that had it when this one was raised.
    void Vanish();
    void ShowCaption(const std::string& text, bool changed);
    void SendHelp(const std::string& topic, int width, int height);
    /// Off while a box is up; then the keyboard is where it was, or in the first control.
    void Enable(bool enabled);

  protected:
    /// Ties the window and its title to their looks.
    void SkinPanel(const char* dialog, int flag, const char* title);
    /// A button of the caption with the look of this name.
    QToolButton* AddSkinButton(const char* name, const char* skin);
    /// Called by a panel behind its own caption buttons; a small dialog has no help.
    void AddHelpAndClose();
    void AddClose();
    void DescribeHelpAndClose();
    /// Puts the keyboard into the window's first control, unless it is in one already.
    virtual void FocusFirst() = 0;
    void SurfacePressed() override;
    void CloseAsked() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Hints hints_;
    Reports reports_;
    QToolButton* help_ = nullptr;
    QToolButton* close_ = nullptr;
    KeptFocus keyboard_;
    QPointer<QWidget> before_;  ///< had the keyboard
};

/// The window of a panel, by its interface: what PanelWindow asks is answered here once.
template <class View>
class PanelFrame : public FloatingPanel, public View {
  public:
    using FloatingPanel::FloatingPanel;

    bool IsVisible() const override { return isVisible(); }
    void Show() override { Raise(); }
    void Hide() override { Vanish(); }
    void Place(const Rect& screen) override { PlaceByRule(ToQt(screen)); }
    void MoveTo(Point corner) override { MoveByRule({corner.x, corner.y}); }
    Rect PlaceOnScreen() const override { return OnScreen(*this); }
    void SetEnabled(bool enabled) override { Enable(enabled); }
    void ApplyTexts() override { ApplyLanguage(*this); }
    void* Handle() const override { return const_cast<PanelFrame*>(this); }
    void SetCaption(const std::string& text, bool changed) override { ShowCaption(text, changed); }
    void RequestHelp(const std::string& topic, int width, int height) override {
        SendHelp(topic, width, height);
    }
};

}  // namespace Tarvik::Seaplan
