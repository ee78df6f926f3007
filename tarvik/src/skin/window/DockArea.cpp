// SPDX-License-Identifier: MIT
#include "skin/window/DockArea.h"

#include <QEvent>
#include <QMainWindow>
#include <algorithm>

#include "skin/window/WindowSeat.h"

namespace Tarvik::Skin {

namespace {

constexpr int kNear = 16;  ///< pixels from an edge at which a dragged panel would dock

QRect Strip(const QRect& room, Dock dock, int depth) {
    QRect strip = room;
    switch (dock) {
        case Dock::Left:
            strip.setWidth(std::min(depth, room.width()));
            break;
        case Dock::Right:
            strip.setLeft(std::max(room.left(), room.right() + 1 - depth));
            break;
        case Dock::Top:
            strip.setHeight(std::min(depth, room.height()));
            break;
        case Dock::Bottom:
            strip.setTop(std::max(room.top(), room.bottom() + 1 - depth));
            break;
        case Dock::None:
        case Dock::Whole:
            break;
    }
    return strip;
}

QRect Without(const QRect& room, Dock dock, const QRect& strip) {
    QRect left = room;
    switch (dock) {
        case Dock::Left:
            left.setLeft(strip.right() + 1);
            break;
        case Dock::Right:
            left.setRight(strip.left() - 1);
            break;
        case Dock::Top:
            left.setTop(strip.bottom() + 1);
            break;
        case Dock::Bottom:
            left.setBottom(strip.top() - 1);
            break;
        case Dock::None:
        case Dock::Whole:
            break;
    }
    // A panel that comes when there is no place beside the others stands over them.
    return left.width() < kNear || left.height() < kNear ? room : left;
}

QWidget& MainWindowOf(QWidget& panel) {
    QWidget* main = &panel;
    while (main->parentWidget() != nullptr) {
        main = main->parentWidget()->window();
    }
    return *main;
}

}  // namespace

DockArea& DockArea::Of(QWidget& panel) {
    QWidget& main = MainWindowOf(panel);
    for (QObject* child : main.children()) {
        if (auto* area = dynamic_cast<DockArea*>(child)) {
            return *area;
        }
    }
    return *new DockArea(main);
}

DockArea::DockArea(QWidget& main) : QObject(&main), main_(main) {
    main_.installEventFilter(this);
}

QRect DockArea::Room() const {
    const auto* window = qobject_cast<QMainWindow*>(&main_);
    const QWidget* middle = window == nullptr ? nullptr : window->centralWidget();
    const QWidget& room = middle == nullptr ? main_ : *middle;
    return {room.mapToGlobal(QPoint(0, 0)), room.size()};
}

Dock DockArea::EdgeAt(const QPoint& pointer) const {
    const QRect room = Room();
    if (!room.adjusted(-kNear, -kNear, kNear, kNear).contains(pointer)) {
        return Dock::None;
    }
    if (pointer.x() < room.left() + kNear) {
        return Dock::Left;
    }
    if (pointer.x() > room.right() - kNear) {
        return Dock::Right;
    }
    if (pointer.y() < room.top() + kNear) {
        return Dock::Top;
    }
    return pointer.y() > room.bottom() - kNear ? Dock::Bottom : Dock::None;
}

QRect DockArea::Left() const {
    QRect room = Room();
    for (const WindowSeat* seat : seats_) {
        if (seat->Window().isVisible()) {
            room = Without(room, seat->Docked(), Strip(room, seat->Docked(), seat->DepthAt(seat->Docked())));
        }
    }
    return room;
}

QRect DockArea::Preview(Dock dock, int depth) const {
    return Strip(Left(), dock, depth);
}

void DockArea::Add(WindowSeat& seat) {
    Remove(seat);
    seats_.push_back(&seat);
    seat.Window().installEventFilter(this);
    if (const auto* window = qobject_cast<QMainWindow*>(&main_); window != nullptr) {
        middle_ = window->centralWidget();
        if (middle_ != nullptr) {
            middle_->installEventFilter(this);
        }
    }
    LayOut();
}

void DockArea::Remove(const WindowSeat& seat) {
    std::erase(seats_, &seat);
}

void DockArea::LayOut() {
    if (laying_) {
        return;
    }
    laying_ = true;
    QRect room = Room();
    for (WindowSeat* seat : seats_) {
        const QWidget& window = seat->Window();
        if (!window.isVisible()) {
            continue;
        }
        const QRect strip = Strip(room, seat->Docked(), seat->DepthAt(seat->Docked()));
        seat->Sit(strip);
        room = Without(room, seat->Docked(), strip);
    }
    laying_ = false;
}

bool DockArea::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
            if (watched == &main_ || watched == middle_) {
                LayOut();
            }
            break;
        case QEvent::Hide:
            LayOut();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace Tarvik::Skin
