// SPDX-License-Identifier: MIT
#include "skin/window/WindowMenu.h"

#include <QActionGroup>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QToolTip>
#include <optional>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/Words.h>

#include "skin/window/WindowSeat.h"

namespace Tarvik::Skin {

namespace {

constexpr const char* kSection = "Window";

struct DockWord {
    Dock dock;
    const char* key;
};
constexpr DockWord kDockWords[] = {{Dock::None, "FLOAT"},         {Dock::Left, "DOCK_LEFT"},
                                   {Dock::Right, "DOCK_RIGHT"},   {Dock::Top, "DOCK_TOP"},
                                   {Dock::Bottom, "DOCK_BOTTOM"}, {Dock::Whole, "DOCK_WHOLE"}};

std::optional<QPoint> StepOf(int key) {
    constexpr int kStep = 4 * kGrid;
    switch (key) {
        case Qt::Key_Left:
            return QPoint(-kStep, 0);
        case Qt::Key_Right:
            return QPoint(kStep, 0);
        case Qt::Key_Up:
            return QPoint(0, -kStep);
        case Qt::Key_Down:
            return QPoint(0, kStep);
        default:
            return std::nullopt;
    }
}

/// Takes the keys of one window while it is moved by them; owned by the window, gone with the last key.
class KeyMover final : public QObject {
  public:
    explicit KeyMover(WindowSeat& seat) : QObject(&seat.Window()), seat_(seat), before_(Window().geometry()) {
        qApp->installEventFilter(this);
        QToolTip::showText(Window().mapToGlobal(QPoint(2 * kGrid, kCaptionHeight)), Word(kSection, "BY_KEYS"),
                           &Window(), {}, kShownMs);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::WindowDeactivate && watched == &Window()) {
            End();
        }
        // Shortcuts of the panel wait as well.
        const bool shortcut = event->type() == QEvent::ShortcutOverride;
        if (!shortcut && event->type() != QEvent::KeyPress) {
            return QObject::eventFilter(watched, event);
        }
        if (shortcut) {
            event->accept();
        } else if (watched->isWidgetType()) {
            Take(*static_cast<QKeyEvent*>(event));
        }
        return true;
    }

  private:
    static constexpr int kShownMs = 60'000;

    QWidget& Window() const { return seat_.Window(); }
    void Take(const QKeyEvent& event) {
        const std::optional<QPoint> step = StepOf(event.key());
        if (step && event.modifiers().testFlag(Qt::ShiftModifier)) {
            Size(*step);
        } else if (step) {
            seat_.MoveTo(KeptOnScreen(Window().geometry().translated(*step)));
        } else if (event.key() == Qt::Key_Escape) {
            seat_.MoveTo(before_);
            End();
        } else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
            End();
        }
    }
    void Size(const QPoint& step) {
        if (seat_.IsResizable()) {
            const QSize least = Window().minimumSizeHint();
            const QRect now = Window().geometry();
            seat_.MoveTo({now.topLeft(), (now.size() + QSize(step.x(), step.y())).expandedTo(least)});
        }
    }
    void End() {
        qApp->removeEventFilter(this);
        QToolTip::hideText();
        if (Window().geometry() != before_) {
            seat_.Keep();
        }
        deleteLater();
    }

    WindowSeat& seat_;
    QRect before_;
};

}  // namespace

void MoveByKeys(WindowSeat& seat) {
    if (seat.Docked() != Dock::None) {
        seat.DockAt(Dock::None);
    }
    new KeyMover(seat);
}

void OpenWindowMenu(WindowSeat& seat, const QPoint& at) {
    auto* menu = new QMenu(&seat.Window());
    menu->setObjectName(QStringLiteral("windowMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* docks = new QActionGroup(menu);
    for (const auto& [dock, key] : kDockWords) {
        QAction* action = menu->addAction(Word(kSection, key));
        action->setObjectName(QString::fromLatin1(key));
        action->setCheckable(true);
        action->setChecked(dock == seat.Docked());
        docks->addAction(action);
        QObject::connect(action, &QAction::triggered, &seat.Window(),
                         [&seat, to = dock] { seat.DockAt(to); });
    }
    menu->addSeparator();
    QAction* keys = menu->addAction(Word(kSection, "MOVE"));
    keys->setObjectName(QStringLiteral("MOVE"));
    // The menu has the keyboard until it is gone.
    QObject::connect(
        keys, &QAction::triggered, &seat.Window(), [&seat] { MoveByKeys(seat); }, Qt::QueuedConnection);
    QAction* usual = menu->addAction(Word(kSection, "USUAL"));
    usual->setObjectName(QStringLiteral("USUAL"));
    QObject::connect(usual, &QAction::triggered, &seat.Window(), [&seat] { seat.GoBackToRule(); });
    menu->popup(at);
}

}  // namespace Tarvik::Skin
