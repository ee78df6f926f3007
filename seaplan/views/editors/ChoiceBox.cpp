// SPDX-License-Identifier: MIT
#include "seaplan/views/editors/ChoiceBox.h"

#include <QCheckBox>
#include <QCursor>
#include <QMouseEvent>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <utility>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/views/editors/KeyReport.h"

namespace Tarvik::Seaplan {

ChoiceBox::ChoiceBox(QWidget* parent, Kind kind, QWidget* anchor, std::map<TextId, const char*> names)
    : QFrame(parent, Qt::Popup), kind_(kind), anchor_(anchor), names_(std::move(names)) {
    setObjectName(QStringLiteral("popup"));
    Skin::SkinWindow(*this, Skin::ControlClass::Dialog, "flt.filter_sortDlg", 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 4, 8, 4);
    rows->setSpacing(2);
    ApplySkin();
}

void ChoiceBox::ApplySkin() {
    setStyleSheet(Skin::StyleSheet());
}

QAbstractButton* ChoiceBox::ButtonOf(TextId id) {
    QAbstractButton*& button = buttons_[id];
    if (button != nullptr) {
        return button;
    }
    if (kind_ == Kind::Checks) {
        button = new QCheckBox(this);
        Skin::SkinWindow(*button, Skin::ControlClass::CheckBox, "trv_check_white");
    } else {
        button = new QRadioButton(this);
        Skin::SkinWindow(*button, Skin::ControlClass::RadioButton, "trv_radio");
    }
    TieText(*button, id);
    const auto name = names_.find(id);
    button->setObjectName(name == names_.end() ? QString() : QString::fromLatin1(name->second));
    new KeyReport(*button, [this, button](KeyPress press) { return Step(*button, StepOfKey(press.key)); });
    layout()->addWidget(button);
    QObject::connect(button, &QAbstractButton::clicked, this, [this, id] {
        if (chosen_) {
            chosen_(id);
        }
    });
    return button;
}

void ChoiceBox::SetChoices(const std::vector<Choice>& choices) {
    for (const Choice& choice : choices) {
        QAbstractButton* button = ButtonOf(choice.id);
        // Radio buttons would keep one of them ticked.
        button->setAutoExclusive(false);
        button->setChecked(choice.ticked);
    }
    for (const auto& [id, button] : buttons_) {
        button->setAutoExclusive(kind_ == Kind::Radios);
    }
    ApplyLanguage(*this);
}

void ChoiceBox::ApplyClassTexts(QWidget& /*window*/) {
    for (const auto& [id, button] : buttons_) {
        Skin::Describe(button, button->text());
    }
}

void ChoiceBox::Show(int width, int height) {
    setFixedSize(width, height);
    move(anchor_ == nullptr ? QCursor::pos() : anchor_->mapToGlobal(QPoint(0, anchor_->height() + 1)));
    const auto lines = Lines();
    const auto ticked =
        std::find_if(lines.begin(), lines.end(), [](const auto* line) { return line->isChecked(); });
    if (!lines.empty()) {
        (ticked == lines.end() ? lines.front() : *ticked)->setFocus(Qt::PopupFocusReason);
    }
    show();
}

/// The buttons from top to bottom.
std::vector<QAbstractButton*> ChoiceBox::Lines() const {
    std::vector<QAbstractButton*> lines;
    lines.reserve(static_cast<std::size_t>(layout()->count()));
    for (int i = 0; i < layout()->count(); ++i) {
        lines.push_back(qobject_cast<QAbstractButton*>(layout()->itemAt(i)->widget()));
    }
    return lines;
}

/// The window system would tick a radio button that is only walked over.
void ChoiceBox::Walk(const QAbstractButton* from, std::ptrdiff_t by) {
    const auto lines = Lines();
    const auto at = std::find(lines.begin(), lines.end(), from) - lines.begin() + by;
    if (at >= 0 && at < std::ssize(lines)) {
        lines[static_cast<std::size_t>(at)]->setFocus(Qt::TabFocusReason);
    }
}

bool ChoiceBox::Step(QAbstractButton& line, ChoiceStep step) {
    if (step == ChoiceStep::Press) {
        line.click();
    } else if (step != ChoiceStep::None) {
        Walk(&line, step == ChoiceStep::Behind ? 1 : -1);
    }
    return step != ChoiceStep::None;
}

void ChoiceBox::mousePressEvent(QMouseEvent* event) {
    const bool onAnchor = anchor_ != nullptr &&
                          anchor_->rect().contains(anchor_->mapFromGlobal(event->globalPosition().toPoint()));
    setAttribute(Qt::WA_NoMouseReplay, onAnchor);
    QFrame::mousePressEvent(event);
}

}  // namespace Tarvik::Seaplan
