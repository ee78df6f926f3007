// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPoint>
#include <QToolButton>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/skin/Palette.h>

class QHBoxLayout;
class QVBoxLayout;

namespace Tarvik::Skin {

/// A floating tool window: caption with title, changed mark and buttons; it moves by dragging any free
/// surface.
class TARVIK_API ToolWindow : public QFrame {
  public:
    /// Floats above `parent`, which owns it, and is hidden at first; `name` is its object name.
    ToolWindow(QWidget* parent, const QString& name);

    /// Title, and accessible name, of the window.
    void SetCaption(const QString& text);
    /// Shows or hides the mark behind the title that something is not saved; `tip` explains it.
    void SetChangedMark(bool shown, const QString& tip);
    /// A button at the right end of the caption, owned by the window; `name` is its object name, `icon` as
    /// MakeIcon takes it.
    QToolButton* AddCaptionButton(const char* name, const std::string& icon);
    /// Where the window's content goes; the window's.
    QVBoxLayout* Body() { return body_; }
    /// Colours and icons of the theme in force; called at every change of it.
    virtual void ApplySkin();

  protected:
    static constexpr int kSide = 2 * kGrid;  ///< pixels between the window's edges and its content

    /// A press on the free surface, before the window begins to move.
    virtual void SurfacePressed() {}
    /// Asked to close by the window system, as by Alt+F4; hides the window or keeps it.
    virtual void CloseAsked() = 0;
    ///@{
    /// Keep the window's look and let it be dragged; an override calls them.
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    ///@}
    /// Remembers a button whose icon follows the theme.
    void KeepIcon(QAbstractButton* button, const std::string& icon);

  private:
    ThemeWatch watch_;
    QHBoxLayout* captionRow_;
    QVBoxLayout* body_;
    QLabel* title_;
    QLabel* changed_;
    QPoint grip_;
    bool dragging_ = false;
    std::vector<std::pair<QAbstractButton*, std::string>> icons_;
};

/// Runs a modal dialog to its end and gives the keyboard back to the window that had it: a window manager
/// gives it to the main window, since it passes floating panels over. The result of QDialog::exec.
TARVIK_API int RunDialog(QDialog& dialog);

/// Accessible name and tool tip in one; a button's tip tells its key too.
TARVIK_API void Describe(QWidget* widget, const QString& text);

}  // namespace Tarvik::Skin
