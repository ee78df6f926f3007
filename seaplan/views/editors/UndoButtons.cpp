// SPDX-License-Identifier: MIT
#include "seaplan/views/editors/UndoButtons.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QToolButton>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

/// What a button that can do nothing tells.
struct IdleText {
    TextId name;
    TextId why;
};

void Tell(QToolButton& button, const std::string& edit, const char* key, const IdleText& idle) {
    const bool on = !edit.empty();
    const QString name = on ? QString::fromStdString(edit) : ViewText(idle.name);
    button.setEnabled(on);
    Skin::Describe(&button, name);
    button.setToolTip(on ? QStringLiteral("%1 (%2)").arg(name, QString::fromLatin1(key))
                         : name + QStringLiteral(": ") + ViewText(idle.why));
}

}  // namespace

UndoButtons::UndoButtons(QWidget* parent)
    : QWidget(parent), undo_(MakeButton("undoButton")), redo_(MakeButton("redoButton")) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Skin::kGrid);
    row->addWidget(undo_);
    row->addWidget(redo_);
    ApplySkin();
}

QToolButton* UndoButtons::MakeButton(const char* name) {
    auto* made = new QToolButton(this);
    made->setObjectName(QString::fromLatin1(name));
    made->setFixedSize(Skin::kControlHeight + 2, Skin::kControlHeight);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

void UndoButtons::SetReports(const std::function<void()>& undo, const std::function<void()>& redo) {
    QObject::connect(undo_, &QToolButton::clicked, this, undo);
    QObject::connect(redo_, &QToolButton::clicked, this, redo);
    // The keys are the window's: a button takes two quick presses of its own for one.
    const std::pair<QKeySequence, const std::function<void()>&> keys[] = {
        {Qt::CTRL | Qt::Key_Z, undo}, {Qt::CTRL | Qt::Key_Y, redo}, {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, redo}};
    for (const auto& [sequence, report] : keys) {
        auto* shortcut = new QShortcut(sequence, window());
        QObject::connect(shortcut, &QShortcut::activated, this, report);
    }
}

void UndoButtons::ShowTexts(const UndoTexts& texts) {
    Tell(*undo_, texts.undo, "Ctrl+Z", {TextIds::IDS_VIEW_UNDO, TextIds::IDS_VIEW_NOUNDO});
    Tell(*redo_, texts.redo, "Ctrl+Y", {TextIds::IDS_VIEW_REDO, TextIds::IDS_VIEW_NOREDO});
}

void UndoButtons::ApplySkin() {
    undo_->setIcon(Skin::MakeIcon("undo"));
    redo_->setIcon(Skin::MakeIcon("redo"));
}

}  // namespace Tarvik::Seaplan
