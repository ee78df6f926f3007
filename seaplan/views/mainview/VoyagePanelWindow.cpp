// SPDX-License-Identifier: MIT
#include "seaplan/views/mainview/VoyagePanelWindow.h"

#include <QAccessible>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/CategoryCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/VesselCommands.h"
#include "seaplan/panels/tree/VoyageTreeSortDlg.h"
#include "seaplan/views/editors/QtKeys.h"

namespace Tarvik::Seaplan {

VoyagePanelWindow::VoyagePanelWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("voyagePanel"), {TextIds::IDS_VOY_HELP, TextIds::IDS_TREE_CLOSE}) {
    SkinPanel("flt.leftmaindlg", 1, "Caption_static");
    findButton_ = AddCaptionButton("findButton", "search");
    TieKey(*findButton_, QKeySequence(Qt::CTRL | Qt::Key_F));
    filterButton_ = AddSkinButton("filterButton", "flt.btn.viewset");
    addButton_ = AddSkinButton("addCategoryButton", "Voyage_addvoyage");
    TieKey(*addButton_, QKeySequence(Qt::CTRL | Qt::Key_N));
    AddHelpAndClose();
    tree_ = new VoyageTreeView(this);
    search_ = new SearchBar(this, tree_);
    vessels_ = new VesselBox(tree_->viewport());
    filter_ = new ChoiceBox(this, ChoiceBox::Kind::Checks, filterButton_,
                            {{TextIds::IDS_TREEVIEW_RECOVER, "showDeletedCheck"}});
    // With the border of one pixel and the caption the tree stands at 10, 45, width - 8, height - 30.
    Body()->setContentsMargins(9, 14, 7, 29);
    Body()->addWidget(search_);
    Body()->addWidget(tree_);
    line_ = new QLabel(this);
    line_->setObjectName(QStringLiteral("treeLine"));
    line_->setWordWrap(true);
    line_->setTextFormat(Qt::PlainText);
    line_->setProperty("secondary", true);
    line_->setAutoFillBackground(true);
    line_->hide();
    SetResizable();
    resize(310, 460);
}

void VoyagePanelWindow::Attach(SeaplanViewDlg* panel, SeaplanTreeCtrl* tree) {
    panel_ = panel;
    vessels_->Attach(&tree->Vessels().Editor());
    search_->Attach(&panel->Search());
    QObject::connect(findButton_, &QToolButton::clicked, this, [panel] { panel->Search().Open(); });
    SetReports({[panel] { panel->RequestHelp(); }, [panel] { panel->Hide(); },
                [this, panel] {
                    // Taking a name may put a box up, which must not begin inside the press.
                    QTimer::singleShot(0, this, [panel] { panel->OnSurfacePressed(); });
                }});
    QObject::connect(filterButton_, &QToolButton::clicked, this, [panel] { panel->Filter().Toggle(); });
    QObject::connect(addButton_, &QToolButton::clicked, this, [panel] { panel->AddCategory(); });
    filter_->SetReport([panel](TextId id) { panel->Filter().OnChosen(id); });
    tree_->SortPopup().SetReport([tree](TextId id) { tree->Categories().SortPanel().OnChosen(id); });
    tree_->SetReports(
        {[tree](TreeRow row, bool beside) { tree->OnRowPressed(row, beside); },
         [tree](TreeRow row, const std::string& item) { tree->OnItemClicked(row, item); },
         [tree](KeyPress press, TreeRow row, const std::string& item) {
             return tree->Keys().OnKey(press, row, item);
         },
         [tree](const std::string& text) { tree->Renaming().OnTyped(text); },
         [tree](Key key) { return tree->Renaming().OnKey(key); }, [tree] { tree->Renaming().Commit(); },
         [tree](const std::string& item) { return tree->HasCommand(item); },
         [tree](TreeRow row) { return tree->Keys().OnMenuKey(row); }, [tree] { tree->Keys().Undo(); }});
    tree->Context().line = [this](const std::string& text) { ShowLine(QString::fromStdString(text)); };
}

/// In the strip below the tree, which is free; a text of more lines covers as much of the tree as it needs.
void VoyagePanelWindow::ShowLine(const QString& text) {
    line_->setText(text);
    line_->setToolTip(text);
    line_->setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        PlaceLine();
        QAccessibleEvent told(line_, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

void VoyagePanelWindow::PlaceLine() {
    const QRect tree = tree_->geometry();
    const int bottom = height() - 1;
    const int needed = std::max(bottom - tree.bottom() - 1, line_->heightForWidth(tree.width()));
    line_->setGeometry(tree.left(), bottom - needed, tree.width(), needed);
    line_->raise();
}

void VoyagePanelWindow::resizeEvent(QResizeEvent* event) {
    PanelFrame::resizeEvent(event);
    PlaceLine();
}

void VoyagePanelWindow::FocusFirst() {
    if (focusWidget() == nullptr) {
        tree_->setFocus();
    }
}

void VoyagePanelWindow::keyPressEvent(QKeyEvent* event) {
    if (panel_ == nullptr || !panel_->OnKey(PressOf(*event).key)) {
        PanelFrame::keyPressEvent(event);
    }
}

void VoyagePanelWindow::ApplyClassTexts(QWidget& /*window*/) {
    Skin::Describe(findButton_, ViewText(TextIds::IDS_VIEW_FIND));
    search_->ApplyTexts();
    Skin::Describe(filterButton_, ViewText(TextIds::IDS_TREE_DELOPERATER));
    Skin::Describe(addButton_, ViewText(TextIds::IDS_TREE_ADDCATEGORY));
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
