// SPDX-License-Identifier: MIT
#include <QFormLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include <tarvik/skin/FactsWindow.h>

namespace Tarvik::Skin {

namespace {

constexpr int kWidth = 300;        ///< pixels
constexpr int kBesideCursor = 16;  ///< pixels

}  // namespace

FactsWindow::FactsWindow(QWidget* parent, const QString& name, const char* closeName,
                         const QString& closeText)
    : ToolWindow(parent, name) {
    QToolButton* close = AddCaptionButton(closeName, "close");
    Describe(close, closeText);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    setFixedWidth(kWidth);
}

void FactsWindow::ShowFacts(const QString& caption, const std::vector<Fact>& facts, const QPoint& cursor) {
    SetCaption(caption);
    delete rows_;
    rows_ = new QWidget(this);
    auto* form = new QFormLayout(rows_);
    form->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, 2 * kGrid);
    for (const Fact& fact : facts) {
        if (fact.value.isEmpty()) {
            continue;
        }
        auto* value = new QLabel(fact.value, rows_);
        value->setObjectName(fact.name);
        value->setAccessibleName(fact.title);
        value->setTextFormat(Qt::PlainText);
        value->setWordWrap(true);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(fact.title, value);
    }
    Body()->addWidget(rows_);
    rows_->show();
    adjustSize();
    PlaceAt(cursor);
    show();
    raise();
}

void FactsWindow::PlaceAt(const QPoint& cursor) {
    const QScreen* screen = QGuiApplication::screenAt(cursor);
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    const QRect room = screen->availableGeometry();
    const int x =
        std::clamp(cursor.x() + kBesideCursor, room.left(), std::max(room.left(), room.right() - width()));
    const int y =
        std::clamp(cursor.y() + kBesideCursor, room.top(), std::max(room.top(), room.bottom() - height()));
    move(x, y);
}

}  // namespace Tarvik::Skin
