// SPDX-License-Identifier: MIT
#include "seaplan/views/editors/DroppedList.h"

#include <algorithm>

#include <tarvik/skin/SkinNames.h>

namespace Tarvik::Seaplan {

void FillList(QListWidget& list, const std::vector<std::string>& texts, int current) {
    list.clear();
    for (const std::string& text : texts) {
        list.addItem(QString::fromStdString(text));
    }
    list.setCurrentRow(current);
}

DroppedList::DroppedList(QWidget& window, QWidget& home, const char* name)
    : QListWidget(&window), window_(window), home_(home) {
    setObjectName(QString::fromLatin1(name));
    Skin::SkinWindow(*this, Skin::ControlClass::ListView, "info.portlistctrl");
    hide();
}

void DroppedList::ShowList(const Rect& screen, const std::vector<std::string>& texts, int current) {
    constexpr int kFrame = 2;
    FillList(*this, texts, current);
    const QPoint corner = window_.mapFromGlobal(QPoint(screen.left, screen.top));
    const int tall = screen.bottom - screen.top + kFrame;
    const int top = std::max(0, std::min(corner.y(), window_.height() - tall - kFrame));
    setGeometry(corner.x(), top, screen.right - screen.left, tall);
    show();
    raise();
}

void DroppedList::HideList() {
    const bool focused = hasFocus();
    hide();
    if (focused) {
        home_.setFocus();
    }
}

void DroppedList::FocusList(int row) {
    setCurrentRow(row);
    setFocus();
}

}  // namespace Tarvik::Seaplan
