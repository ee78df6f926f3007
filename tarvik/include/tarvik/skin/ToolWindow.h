// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QToolButton>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <tarvik/skin/Palette.h>

class QHBoxLayout;
class QVBoxLayout;

namespace Tarvik::Skin {

class WindowGrip;
class WindowSeat;

/// A floating tool window: caption with title, changed mark and buttons. A person drags it by any free
/// surface, docks it at an edge of the main window, and finds it there the next time; a double click on the
/// caption lets it fill the main window. It opens wholly on the screen.
class TARVIK_API ToolWindow : public QFrame {
  public:
    /// Floats above `parent`, which owns it, and is hidden at first; `name` is its object name.
    ToolWindow(QWidget* parent, const QString& name);
    ~ToolWindow() override;

    /// Title, and accessible name, of the window.
    void SetCaption(const QString& text);
    /// Shows or hides the mark behind the title that something is not saved; `tip` explains it.
    void SetChangedMark(bool shown, const QString& tip);
    /// A button at the right end of the caption, owned by the window; `name` is its object name, `icon` as
    /// MakeIcon takes it.
    QToolButton* AddCaptionButton(const char* name, const std::string& icon);
    /// Where the window's content goes; the window's.
    QVBoxLayout* Body() { return body_; }
    ///@{
    /// Where the program wants the window, in pixels of the screen. It counts until a person has chosen
    /// another place, and is kept on the screen.
    void PlaceByRule(const QRect& wanted);
    void MoveByRule(const QPoint& corner);
    ///@}
    /// Colours and icons of the theme in force; called at every change of it.
    virtual void ApplySkin();

  protected:
    static constexpr int kSide = 2 * kGrid;  ///< pixels between the window's edges and its content

    /// Lets a person size the window by its edges; its content follows.
    void SetResizable();
    /// A press on the free surface, before the window begins to move.
    virtual void SurfacePressed() {}
    /// Asked to close by the window system, as by Alt+F4; hides the window or keeps it.
    virtual void CloseAsked() = 0;
    ///@{
    /// Keep the window's look and place and let it be dragged; an override calls them.
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    ///@}
    /// Remembers a button whose icon follows the theme.
    void KeepIcon(QAbstractButton* button, const std::string& icon);

  private:
    ThemeWatch watch_;
    QHBoxLayout* captionRow_;
    QVBoxLayout* body_;
    QLabel* title_;
    QLabel* changed_;
    std::unique_ptr<WindowSeat> seat_;
    std::unique_ptr<WindowGrip> grip_;
    std::vector<std::pair<QAbstractButton*, std::string>> icons_;
};

/// Runs a modal dialog to its end and gives the keyboard back to the window that had it: a window manager
/// gives it to the main window, since it passes floating panels over. The result of QDialog::exec.
TARVIK_API int RunDialog(QDialog& dialog);

/// Accessible name and tool tip in one; a button's tip tells its key too.
TARVIK_API void Describe(QWidget* widget, const QString& text);

}  // namespace Tarvik::Skin
