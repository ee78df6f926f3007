// SPDX-License-Identifier: MIT
#include "seaplan/views/mainview/VoyagePanelWindow.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include <tarvik/interface/HelpRequest.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/views/ViewText.h"

namespace Tarvik::Seaplan {

VoyagePanelWindow::VoyagePanelWindow(QWidget* mainView)
    : Skin::ToolWindow(mainView, QStringLiteral("voyagePanel")) {
    filterButton_ = AddCaptionButton("filterButton", "filter");
    addButton_ = AddCaptionButton("addCategoryButton", "add");
    helpButton_ = AddCaptionButton("helpButton", "help");
    closeButton_ = AddCaptionButton("closeButton", "close");
    addButton_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    helpButton_->setShortcut(QKeySequence(Qt::Key_F1));
    closeButton_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    tree_ = new VoyageTreeView(this);
    vessels_ = new VesselBox(tree_->viewport());
    // With the border of one pixel and the caption the tree stands at 10, 45, width - 8, height - 30.
    Body()->setContentsMargins(9, 14, 7, 29);
    Body()->addWidget(tree_);
    resize(310, 460);
    ApplyTexts();
}

void VoyagePanelWindow::Attach(SeaplanViewDlg* panel, SeaplanTreeCtrl* tree) {
    panel_ = panel;
    vessels_->Attach(tree->VesselEditor());
    QObject::connect(filterButton_, &QToolButton::clicked, this, [panel] { panel->ToggleFilter(); });
    QObject::connect(addButton_, &QToolButton::clicked, this, [panel] { panel->AddCategory(); });
    QObject::connect(helpButton_, &QToolButton::clicked, this, [panel] { panel->RequestHelp(); });
    QObject::connect(closeButton_, &QToolButton::clicked, this, [panel] { panel->Hide(); });
    tree_->SetReports({[tree](TreeRow row) { tree->OnRowPressed(row); },
                       [tree](TreeRow row, const std::string& item) { tree->OnItemClicked(row, item); },
                       [tree] { tree->CommitRename(); },
                       [tree](const std::string& ci, int key) {
                           if (tree->SetSortKey(ci, key) == 0) {
                               tree->Context().tree.HidePopups();
                           }
                       },
                       [panel] { panel->AddCategory(); },
                       [tree](const std::string& item) { return tree->HasCommand(item); }});
}

void VoyagePanelWindow::Place(const Rect& screen) {
    setGeometry(screen.left, screen.top, screen.right - screen.left, screen.bottom - screen.top);
}

void VoyagePanelWindow::Show() {
    show();
    raise();
    if (focusWidget() == nullptr) {
        tree_->setFocus();
    }
}

void VoyagePanelWindow::Hide() {
    HideFilter();
    hide();
}

void VoyagePanelWindow::ApplyTexts() {
    SetCaption(ViewText(TextId::IDS_TREE_VOYTITLE));
    Skin::Describe(filterButton_, ViewText(TextId::IDS_TREE_DELOPERATER));
    Skin::Describe(addButton_, ViewText(TextId::IDS_TREE_ADDCATEGORY));
    Skin::Describe(helpButton_, ViewText(TextId::IDS_VOY_HELP));
    Skin::Describe(closeButton_, ViewText(TextId::IDS_TREE_CLOSE));
    tree_->ApplyTexts();
    vessels_->ApplyTexts();
    if (showDeleted_ != nullptr) {
        showDeleted_->setText(ViewText(TextId::IDS_TREEVIEW_RECOVER));
        Skin::Describe(showDeleted_, ViewText(TextId::IDS_TREEVIEW_RECOVER));
    }
    update();
}

void VoyagePanelWindow::MakeFilter() {
    filter_ = new QFrame(this, Qt::Popup);
    filter_->setObjectName(QStringLiteral("popup"));
    filter_->setStyleSheet(Skin::StyleSheet());
    auto* rows = new QVBoxLayout(filter_);
    rows->setContentsMargins(8, 4, 8, 4);
    showDeleted_ = new QCheckBox(filter_);
    showDeleted_->setObjectName(QStringLiteral("showDeletedCheck"));
    rows->addWidget(showDeleted_);
    QObject::connect(showDeleted_, &QCheckBox::clicked, this,
                     [this](bool on) { panel_->SetShowDeleted(on); });
    filter_->resize(180, 35);
    ApplyTexts();
}

bool VoyagePanelWindow::FilterVisible() const {
    return filter_ != nullptr && filter_->isVisible();
}

void VoyagePanelWindow::ShowFilter(bool showDeleted) {
    if (filter_ == nullptr) {
        MakeFilter();
    }
    showDeleted_->setChecked(showDeleted);
    filter_->move(filterButton_->mapToGlobal(QPoint(0, filterButton_->height() + 1)));
    filter_->show();
}

void VoyagePanelWindow::HideFilter() {
    if (filter_ != nullptr) {
        filter_->hide();
    }
}

void VoyagePanelWindow::RequestHelp(const std::string& topic, int width, int height) {
    SendHelpRequest(parentWidget(), topic, width, height);
}

void VoyagePanelWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    if (filter_ != nullptr) {
        filter_->setStyleSheet(Skin::StyleSheet());
    }
    tree_->ApplySkin();
    vessels_->ApplySkin();
}

void VoyagePanelWindow::SurfacePressed() {
    if (panel_ != nullptr) {
        panel_->OnSurfacePressed();
    }
}

void VoyagePanelWindow::CloseAsked() {
    if (panel_ != nullptr) {
        panel_->Hide();
    }
}

}  // namespace Tarvik::Seaplan
