// SPDX-License-Identifier: MIT
#include "host/client/shell/MainTools.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>
#include <string>
#include <utility>

#include <tarvik/skin/Icons.h>

namespace Tarvik::Client {

namespace {

/// What the window system makes for tools that have no room: it shows them in further lines of the bar.
QToolButton* MoreTools(const QToolBar& bar) {
    return bar.findChild<QToolButton*>("qt_toolbar_ext_button");
}

}  // namespace

MainTools::MainTools(QMainWindow& window, std::vector<Tool> tools)
    : bar_(window.addToolBar("tools")), tools_(std::move(tools)) {
    bar_->setObjectName("mainToolBar");
    bar_->setMovable(false);
    bar_->setIconSize(QSize(20, 20));
    bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar_->setContextMenuPolicy(Qt::PreventContextMenu);
    for (Tool& tool : tools_) {
        tool.action = bar_->addAction(QString());
        tool.action->setObjectName(QString("action_") + tool.icon);
        tool.action->setShortcut(QKeySequence(tool.shortcut));
        QObject::connect(tool.action, &QAction::triggered, &window, tool.run);
        QWidget* button = bar_->widgetForAction(tool.action);
        button->setObjectName(QString("button_") + tool.icon);
        button->setFocusPolicy(Qt::TabFocus);
        if (tool.endsGroup) {
            bar_->addSeparator();
        }
    }
    if (QToolButton* more = MoreTools(*bar_)) {
        more->setFocusPolicy(Qt::TabFocus);
    }
}

void MainTools::ApplyTexts(const Words& word) {
    bar_->setAccessibleName(word("TOOLBAR_NAME"));
    if (QToolButton* more = MoreTools(*bar_)) {
        more->setAccessibleName(word("MORE_TOOLS"));
        more->setToolTip(word("MORE_TOOLS"));
    }
    for (const Tool& tool : tools_) {
        const QString tip = word((std::string(tool.key) + "_TIP").c_str());
        tool.action->setText(word(tool.key));
        tool.action->setToolTip(tip);
        tool.action->setStatusTip(QString());
        QWidget* button = bar_->widgetForAction(tool.action);
        button->setAccessibleName(word(tool.key));
        button->setAccessibleDescription(tip);
    }
}

void MainTools::ApplyIcons() {
    // The window system's own picture is black in every look.
    if (QToolButton* more = MoreTools(*bar_)) {
        more->setIcon(Skin::MakeIcon("chevron-down"));
    }
    for (const Tool& tool : tools_) {
        tool.action->setIcon(Skin::MakeIcon(std::string(":/tarvik/icons/") + tool.icon + ".svg", {20, 40}));
    }
}

std::vector<std::pair<QString, QString>> MainTools::Keys() const {
    std::vector<std::pair<QString, QString>> keys;
    for (const Tool& tool : tools_) {
        if (tool.action->isVisible()) {
            keys.emplace_back(tool.action->shortcut().toString(QKeySequence::NativeText),
                              tool.action->text());
        }
    }
    return keys;
}

QAction* MainTools::Action(const char* key) const {
    for (const Tool& tool : tools_) {
        if (std::string(tool.key) == key) {
            return tool.action;
        }
    }
    return nullptr;
}

}  // namespace Tarvik::Client
