// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTreeWidget>
#include <vector>

#include "host/ports/search/PortIndex.h"

namespace Tarvik::InfoSearch {

using Ports::Port;
using Ports::PortHit;
using Ports::PortIndex;

/// The ports that fit what is typed, below the field of a port editor; a part of the editor's window. Arrows
/// in the field lead into it. It tells the editor the name that it stands on and that one was chosen
/// (tarvik/skin/WindowMessages.h); every other key goes on to the field.
class MatchWindow : public QTreeWidget {
  public:
    /// `editor` is told, and the window stands in it until it goes elsewhere by Follow.
    explicit MatchWindow(QWidget* editor);

    /// Goes to the editor and listens to the arrows of the field.
    void Follow(QWidget* editor, QWidget* field);
    /// Shows these ports in place of those before; none stands chosen.
    void Fill(const std::vector<PortHit>& hits);

  protected:
    ///@{
    /// Keep the window within the editor's.
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    ///@}
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool FieldKey(int key);
    bool ListKey(QKeyEvent& event);
    void Enter(int row);
    void TellMoved();
    void Choose();
    void BackToField();
    void KeepInside();

    QPointer<QWidget> editor_;
    QPointer<QWidget> field_;
};

}  // namespace Tarvik::InfoSearch
