// SPDX-License-Identifier: MIT
#include "skin/window/WindowSeat.h"

#include <QGuiApplication>
#include <QScreen>

#include <tarvik/skin/Palette.h>

#include "skin/window/DockArea.h"

namespace Tarvik::Skin {

namespace {

bool IsUpright(Dock dock) {
    return dock == Dock::Left || dock == Dock::Right;
}

}  // namespace

WindowSeat::~WindowSeat() {
    if (area_ != nullptr) {
        area_->Remove(*this);
    }
}

DockArea& WindowSeat::Area() {
    if (area_ == nullptr) {
        area_ = &DockArea::Of(window_);
    }
    return *area_;
}

int WindowSeat::DepthAt(Dock dock) const {
    const QSize own = Docked() == Dock::None ? window_.size() : place_.floating.size();
    const bool kept = resizable_ && place_.depth > 0 && dock == place_.dock;
    const int least =
        IsUpright(dock) ? window_.minimumSizeHint().width() : window_.minimumSizeHint().height();
    return std::max(kept ? place_.depth : (IsUpright(dock) ? own.width() : own.height()), least);
}

QRect WindowSeat::Bounded(const QRect& wanted) const {
    if (!resizable_) {
        return {wanted.topLeft(), window_.size()};
    }
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    const QSize most = (screen == nullptr ? QGuiApplication::primaryScreen() : screen)->availableSize();
    return {wanted.topLeft(), wanted.size().boundedTo(most).expandedTo(window_.minimumSizeHint())};
}

void WindowSeat::PlaceByRule(const QRect& wanted) {
    rule_ = wanted;
    if (!chosen_) {
        window_.setGeometry(KeptOnScreen(wanted));
    }
}

void WindowSeat::MoveByRule(const QPoint& corner) {
    PlaceByRule({corner, chosen_ ? usual_ : window_.size()});
}

void WindowSeat::TakeSeat() {
    if (!read_) {
        read_ = true;
        usual_ = window_.size();
        const std::optional<WindowPlace> kept = KeptPlace(window_.objectName());
        chosen_ = kept.has_value();
        place_ = kept.value_or(WindowPlace{});
    }
    if (Docked() != Dock::None) {
        Area().Add(*this);
    } else {
        window_.setGeometry(KeptOnScreen(Bounded(chosen_ ? place_.floating : window_.geometry())));
    }
}

void WindowSeat::MoveTo(const QRect& wanted) {
    chosen_ = true;
    if (Docked() == Dock::None) {
        place_.floating = wanted;
        return window_.setGeometry(wanted);
    }
    place_.depth = IsUpright(Docked()) ? wanted.width() : wanted.height();
    Area().LayOut();
}

void WindowSeat::DockAt(Dock dock) {
    chosen_ = true;
    if (Docked() == Dock::None) {
        place_.floating = window_.geometry();
    }
    place_.depth = 0;
    place_.dock = dock;
    if (dock == Dock::None) {
        Leave();
        window_.setGeometry(KeptOnScreen(Bounded(place_.floating)));
    } else {
        Area().Add(*this);
    }
    Keep();
}

void WindowSeat::Leave() {
    place_.dock = Dock::None;
    Area().Remove(*this);
    Area().LayOut();
}

QRect WindowSeat::TearOff(const QPoint& pointer) {
    const double share = window_.width() == 0 ? 0 : double(pointer.x() - window_.x()) / window_.width();
    Leave();
    const QRect own = Bounded(place_.floating);
    const QPoint corner(pointer.x() - static_cast<int>(share * own.width()),
                        pointer.y() - kCaptionHeight / 2);
    MoveTo({corner, own.size()});
    return window_.geometry();
}

void WindowSeat::Keep() {
    if (chosen_) {
        KeepPlace(window_.objectName(), place_);
    }
}

void WindowSeat::GoBackToRule() {
    ForgetPlace(window_.objectName());
    if (Docked() != Dock::None) {
        Leave();
    }
    chosen_ = false;
    place_ = {};
    window_.setGeometry(KeptOnScreen(Bounded(rule_.value_or(QRect(window_.pos(), usual_)))));
}

void WindowSeat::Sit(const QRect& room) {
    QRect seat = room;
    if (!resizable_) {
        seat.setSize(window_.size());
        if (Docked() == Dock::Right) {
            seat.moveRight(room.right());
        } else if (Docked() == Dock::Bottom) {
            seat.moveBottom(room.bottom());
        }
    }
    window_.setGeometry(seat);
}

}  // namespace Tarvik::Skin
