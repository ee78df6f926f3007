// SPDX-License-Identifier: MIT
#include "seaplan/views/mainview/VoyagePanelWindow.h"

#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"

namespace Tarvik::Seaplan {

VoyagePanelWindow::VoyagePanelWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("voyagePanel"), {TextId::IDS_VOY_HELP, TextId::IDS_TREE_CLOSE}) {
    findButton_ = AddCaptionButton("findButton", "search");
    findButton_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));
    filterButton_ = AddCaptionButton("filterButton", "filter");
    addButton_ = AddCaptionButton("addCategoryButton", "add");
    addButton_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    AddHelpAndClose();
    tree_ = new VoyageTreeView(this);
    search_ = new SearchBar(this, tree_);
    vessels_ = new VesselBox(tree_->viewport());
    filter_ = new ChoiceBox(this, ChoiceBox::Kind::Checks, filterButton_,
                            {{TextId::IDS_TREEVIEW_RECOVER, "showDeletedCheck"}});
    // With the border of one pixel and the caption the tree stands at 10, 45, width - 8, height - 30.
    Body()->setContentsMargins(9, 14, 7, 29);
    Body()->addWidget(search_);
    Body()->addWidget(tree_);
    resize(310, 460);
}

void VoyagePanelWindow::Attach(SeaplanViewDlg* panel, SeaplanTreeCtrl* tree) {
    panel_ = panel;
    vessels_->Attach(&tree->Vessels().Editor());
    search_->Attach(&panel->Search());
    // Its key is followed by typing at once, which must not go to the tree: a click by key comes a tenth of a
    // second later.
    QObject::connect(findButton_, &QToolButton::pressed, this, [panel] { panel->Search().Open(); });
    SetReports({[panel] { panel->RequestHelp(); }, [panel] { panel->Hide(); },
                [this, panel] {
                    // Taking a name may put a box up, which must not begin inside the press.
                    QTimer::singleShot(0, this, [panel] { panel->OnSurfacePressed(); });
                }});
    QObject::connect(filterButton_, &QToolButton::clicked, this, [panel] { panel->Filter().Toggle(); });
    QObject::connect(addButton_, &QToolButton::clicked, this, [panel] { panel->AddCategory(); });
    filter_->SetReport([panel](TextId id) { panel->Filter().OnChosen(id); });
    tree_->SortPopup().SetReport([tree](TextId id) { tree->SortPanel().OnChosen(id); });
    tree_->SetReports(
        {[tree](TreeRow row, bool beside) { tree->OnRowPressed(row, beside); },
         [tree](TreeRow row, const std::string& item) { tree->OnItemClicked(row, item); },
         [tree](Key key, TreeRow row, const std::string& item) { return tree->Keys().OnKey(key, row, item); },
         [tree](const std::string& text) { tree->Renaming().OnTyped(text); },
         [tree] { tree->Renaming().Commit(); },
         [tree](const std::string& item) { return tree->HasCommand(item); },
         [tree](TreeRow row) { return tree->Keys().OnMenuKey(row); }});
}

void VoyagePanelWindow::FocusFirst() {
    if (focusWidget() == nullptr) {
        tree_->setFocus();
    }
}

void VoyagePanelWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && panel_ != nullptr && panel_->Search().IsOpen()) {
        panel_->Search().Close();
    } else {
        PanelFrame::keyPressEvent(event);
    }
}

void VoyagePanelWindow::ApplyClassTexts(QWidget& /*window*/) {
    Skin::Describe(findButton_, ViewText(TextId::IDS_VIEW_FIND));
    search_->ApplyTexts();
    Skin::Describe(filterButton_, ViewText(TextId::IDS_TREE_DELOPERATER));
    Skin::Describe(addButton_, ViewText(TextId::IDS_TREE_ADDCATEGORY));
    DescribeHelpAndClose();
    tree_->ApplyTexts();
    vessels_->ApplyTexts();
}

void VoyagePanelWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    filter_->ApplySkin();
    search_->ApplySkin();
    tree_->ApplySkin();
    vessels_->ApplySkin();
}

}  // namespace Tarvik::Seaplan
