// SPDX-License-Identifier: MIT
#include "seaplan/views/distances/KeepTableWindow.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <tarvik/skin/SkinNames.h>

#include "seaplan/panels/distances/CPortDistTabDlg.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/views/editors/OutsidePress.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/editors/RowField.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kFieldWidth = 190;
constexpr int kButtonWidth = 76;

QLineEdit* MakeField(QWidget* window, const char* name, int width) {
    auto* field = new QLineEdit(window);
    field->setObjectName(QString::fromLatin1(name));
    field->setFixedSize(width, Skin::kControlHeight);
    return field;
}

QLabel* MakeLabel(QWidget* window, TextId text) {
    auto* label = new QLabel(window);
    TieText(*label, text);
    Skin::SkinWindow(*label, Skin::ControlClass::StaticText, "VoyPortCallStatic");
    return label;
}

}  // namespace

KeepTableWindow::KeepTableWindow(QWidget* mainView)
    : PanelFrame(mainView, QStringLiteral("keepTableDialog"),
                 {TextIds::IDS_PORTCALL_HELP, TextIds::IDS_PORTCALL_CLOSE}) {
    SkinPanel("TRV_PortDistSaveDlg", 1, "Caption_static");
    AddClose();
    MakeFields();
    MakeButtons();
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("categoryList"));
    list_->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    list_->setAttribute(Qt::WA_ShowWithoutActivating);
    list_->setProperty("dense", true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->installEventFilter(this);
    category_->installEventFilter(this);
    ApplySkin();
    ApplyTexts();
    adjustSize();
}

void KeepTableWindow::MakeFields() {
    category_ = MakeField(this, "categoryField", kFieldWidth - Skin::kControlHeight);
    arrow_ = new QToolButton(this);
    arrow_->setObjectName(QStringLiteral("categoryArrow"));
    arrow_->setFixedSize(Skin::kControlHeight, Skin::kControlHeight);
    arrow_->setFocusPolicy(Qt::NoFocus);
    voyage_ = MakeField(this, "voyageField", kFieldWidth);
    Skin::SkinWindow(*category_, Skin::ControlClass::EditField, "TRV_PortDistSaveDlg.CateEdit", 1);
    Skin::SkinWindow(*voyage_, Skin::ControlClass::EditField, "TRV_PortDistSaveDlg.VoyEdit");
    Skin::SkinWindow(*arrow_, Skin::ControlClass::PushButton, "TRV_PortDistSaveDlg.CateList");
    note_ = new QLabel(this);
    note_->setObjectName(QStringLiteral("keepNote"));
    note_->setWordWrap(true);
    note_->hide();
    auto* top = new QHBoxLayout;
    top->setSpacing(0);
    top->addWidget(category_);
    top->addWidget(arrow_);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * Skin::kGrid);
    grid->setVerticalSpacing(2 * Skin::kGrid);
    grid->addWidget(MakeLabel(this, TextIds::IDS_PORTDISTAB_CATENAME), 0, 0);
    grid->addLayout(top, 0, 1);
    grid->addWidget(MakeLabel(this, TextIds::IDS_PORTDISTAB_VOYNAME), 1, 0);
    grid->addWidget(voyage_, 1, 1);
    Body()->addLayout(grid);
    Body()->addWidget(note_);
}

void KeepTableWindow::MakeButtons() {
    ok_ = new QPushButton(this);
    ok_->setObjectName(QStringLiteral("keepOkButton"));
    ok_->setProperty("primary", true);
    cancel_ = new QPushButton(this);
    cancel_->setObjectName(QStringLiteral("keepCancelButton"));
    TieText(*ok_, TextIds::IDS_PORTDISTAB_OK);
    TieText(*cancel_, TextIds::IDS_PORTDISTAB_CANCEL);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * Skin::kGrid);
    row->addStretch(1);
    for (QPushButton* button : {ok_, cancel_}) {
        Skin::SkinWindow(*button, Skin::ControlClass::PushButton, "trv_btn_59");
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus);
        button->setMinimumWidth(kButtonWidth);
        row->addWidget(button);
    }
    Body()->addLayout(row);
}

void KeepTableWindow::Attach(CPortDistTabDlg* panel) {
    panel_ = panel;
    SetReports({{}, [panel] { panel->OnClose(); }, [panel] { panel->OnPressedOutside(); }, KeyClosesDialog});
    // What the program writes is no typing.
    QObject::connect(category_, &QLineEdit::textEdited, this,
                     [panel](const QString& text) { panel->OnCategoryTyped(text.toStdString()); });
    QObject::connect(voyage_, &QLineEdit::textEdited, this,
                     [panel](const QString& text) { panel->OnVoyageTyped(text.toStdString()); });
    QObject::connect(voyage_, &QLineEdit::returnPressed, this, [this] { ok_->click(); });
    QObject::connect(arrow_, &QToolButton::clicked, this, [panel] { panel->OnArrow(); });
    QObject::connect(ok_, &QPushButton::clicked, this, [panel] { panel->OnOk(); });
    QObject::connect(cancel_, &QPushButton::clicked, this, [panel] { panel->OnClose(); });
    QObject::connect(list_, &QListWidget::itemClicked, this,
                     [this](const QListWidgetItem* item) { panel_->OnNameChosen(list_->row(item)); });
    new OutsidePress(
        this,
        [this](const QWidget& widget) {
            return BelongsTo(*category_, widget) || BelongsTo(*arrow_, widget) || BelongsTo(*list_, widget);
        },
        [panel] { panel->OnPressedOutside(); });
}

void KeepTableWindow::SetCategory(const std::string& text, bool selected) {
    category_->setText(QString::fromStdString(text));
    if (selected) {
        category_->selectAll();
    }
}

void KeepTableWindow::SetVoyageName(const std::string& text) {
    voyage_->setText(QString::fromStdString(text));
}

void KeepTableWindow::ShowNote(const std::string& text) {
    note_->setText(QString::fromStdString(text));
    note_->setVisible(!text.empty());
    adjustSize();
}

void KeepTableWindow::ShowList(const Rect& screen, const std::vector<std::string>& texts, int current) {
    list_->clear();
    for (const std::string& text : texts) {
        auto* item = new QListWidgetItem(QString::fromStdString(text), list_);
        item->setSizeHint({kDropListColumn, kDroppedRow});
        item->setToolTip(item->text());
    }
    list_->setGeometry(ToQt(screen));
    list_->setCurrentRow(current);
    list_->show();
}

void KeepTableWindow::HideList() {
    const bool focused = list_->hasFocus();
    list_->hide();
    if (focused) {
        activateWindow();
        category_->setFocus();
    }
}

void KeepTableWindow::FocusList(int row) {
    list_->activateWindow();
    list_->setFocus();
    list_->setCurrentRow(row);
}

void KeepTableWindow::ApplyClassTexts(QWidget& /*window*/) {
    DescribeHelpAndClose();
    Skin::Describe(category_, ViewText(TextIds::IDS_PORTDISTAB_CATENAME));
    Skin::Describe(voyage_, ViewText(TextIds::IDS_PORTDISTAB_VOYNAME));
    Skin::Describe(arrow_, ViewText(TextIds::IDS_VIEW_CATEGORIES));
    Skin::Describe(ok_, ViewText(TextIds::IDS_PORTDISTAB_OK));
    Skin::Describe(cancel_, ViewText(TextIds::IDS_PORTDISTAB_CANCEL));
    list_->setAccessibleName(ViewText(TextIds::IDS_PORTDISTAB_CATENAME));
    adjustSize();
}

void KeepTableWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    list_->setStyleSheet(Skin::StyleSheet());
}

bool KeepTableWindow::eventFilter(QObject* watched, QEvent* event) {
    if (panel_ == nullptr) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        const KeyPress press = PressOf(*static_cast<QKeyEvent*>(event));
        return watched == list_ ? panel_->OnListKey(press, list_->currentRow())
                                : panel_->OnCategoryKey(press);
    }
    if (watched == category_ && event->type() == QEvent::FocusOut) {
        // Another window, the list among them, gives the keyboard back.
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && !list_->hasFocus()) {
            panel_->OnCategoryLeft();
        }
    }
    return false;
}

}  // namespace Tarvik::Seaplan
