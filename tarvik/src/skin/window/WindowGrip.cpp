// SPDX-License-Identifier: MIT
#include "skin/window/WindowGrip.h"

#include <QApplication>
#include <QMouseEvent>
#include <algorithm>

#include <tarvik/skin/Palette.h>

#include "skin/window/DockArea.h"
#include "skin/window/WindowSeat.h"

namespace Tarvik::Skin {

namespace {

constexpr int kEdge = 5;     ///< pixels from an edge by which it is taken
constexpr int kCorner = 16;  ///< pixels from a corner

Qt::CursorShape ShapeOf(Qt::Edges edges) {
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        return Qt::SizeBDiagCursor;
    }
    return edges.testAnyFlags(Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

/// The edges by which a docked panel can be sized: the one that looks to the chart.
Qt::Edges FreeEdges(Dock dock) {
    switch (dock) {
        case Dock::Left:
            return Qt::RightEdge;
        case Dock::Right:
            return Qt::LeftEdge;
        case Dock::Top:
            return Qt::BottomEdge;
        case Dock::Bottom:
            return Qt::TopEdge;
        case Dock::Whole:
            return {};
        case Dock::None:
            break;
    }
    return Qt::LeftEdge | Qt::RightEdge | Qt::TopEdge | Qt::BottomEdge;
}

}  // namespace

WindowGrip::~WindowGrip() {
    delete outline_.data();
}

Qt::Edges WindowGrip::EdgesAt(const QPoint& point) const {
    if (!seat_.IsResizable()) {
        return {};
    }
    const int right = seat_.Window().width() - 1 - point.x();
    const int bottom = seat_.Window().height() - 1 - point.y();
    const bool onEdge = std::min({point.x(), point.y(), right, bottom}) < kEdge;
    const int reach = onEdge ? kCorner : kEdge;
    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, point.x() < reach);
    edges.setFlag(Qt::RightEdge, right < reach);
    edges.setFlag(Qt::TopEdge, point.y() < reach);
    edges.setFlag(Qt::BottomEdge, bottom < reach);
    return onEdge ? edges & FreeEdges(seat_.Docked()) : Qt::Edges();
}

void WindowGrip::Hover(const QPoint& point) {
    if (held_) {
        return;
    }
    const Qt::Edges edges = EdgesAt(point);
    if (edges) {
        seat_.Window().setCursor(ShapeOf(edges));
    } else {
        seat_.Window().unsetCursor();
    }
}

void WindowGrip::Press(const QMouseEvent& event) {
    held_ = true;
    moved_ = false;
    target_ = Dock::None;
    edges_ = EdgesAt(event.position().toPoint());
    pressed_ = event.globalPosition().toPoint();
    before_ = seat_.Window().geometry();
}

void WindowGrip::Drag(const QMouseEvent& event) {
    if (!held_) {
        return;
    }
    const QPoint pointer = event.globalPosition().toPoint();
    const bool docked = seat_.Docked() != Dock::None;
    // A click by a hand that is not quite still moves nothing.
    if (!moved_ &&
        (pointer - pressed_).manhattanLength() < (docked ? QApplication::startDragDistance() : kGrid)) {
        return;
    }
    if (edges_) {
        moved_ = true;
        return Size(pointer - pressed_);
    }
    if (!moved_ && docked) {
        before_ = seat_.TearOff(pointer);
        pressed_ = pointer;
    }
    moved_ = true;
    Move(pointer, !event.modifiers().testFlag(Qt::ControlModifier));
}

void WindowGrip::Size(const QPoint& by) {
    const QSize least = seat_.Window().minimumSizeHint().expandedTo(seat_.Window().minimumSize());
    QRect wanted = before_;
    if (edges_.testFlag(Qt::LeftEdge)) {
        wanted.setLeft(std::min(before_.left() + by.x(), before_.right() + 1 - least.width()));
    }
    if (edges_.testFlag(Qt::RightEdge)) {
        wanted.setRight(std::max(before_.right() + by.x(), before_.left() - 1 + least.width()));
    }
    if (edges_.testFlag(Qt::TopEdge)) {
        wanted.setTop(std::min(before_.top() + by.y(), before_.bottom() + 1 - least.height()));
    }
    if (edges_.testFlag(Qt::BottomEdge)) {
        wanted.setBottom(std::max(before_.bottom() + by.y(), before_.top() - 1 + least.height()));
    }
    seat_.MoveTo(wanted);
}

void WindowGrip::Move(const QPoint& pointer, bool docks) {
    seat_.MoveTo(before_.translated(pointer - pressed_));
    target_ = docks ? DockArea::Of(seat_.Window()).EdgeAt(pointer) : Dock::None;
    ShowOutline();
}

void WindowGrip::ShowOutline() {
    if (target_ == Dock::None) {
        delete outline_.data();
        return;
    }
    DockArea& area = DockArea::Of(seat_.Window());
    auto* main = qobject_cast<QWidget*>(area.parent());
    if (outline_.isNull()) {
        outline_ = new QRubberBand(QRubberBand::Rectangle, main);
    }
    const QRect place = area.Preview(target_, seat_.DepthAt(target_));
    outline_->setGeometry({main->mapFromGlobal(place.topLeft()), place.size()});
    outline_->show();
}

void WindowGrip::Release() {
    if (!held_) {
        return;
    }
    held_ = false;
    delete outline_.data();
    if (target_ != Dock::None) {
        seat_.DockAt(target_);
    } else if (moved_) {
        seat_.Keep();
    }
}

}  // namespace Tarvik::Skin
