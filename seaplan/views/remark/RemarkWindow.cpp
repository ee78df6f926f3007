// SPDX-License-Identifier: MIT
#include "seaplan/views/remark/RemarkWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/SkinNames.h>

#include "seaplan/panels/remark/CRemarkPanel.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/panels/texts/NoteTexts.h"
#include "seaplan/views/editors/KeyReport.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kFieldWidth = 292;
constexpr int kBodyHeight = 278;

QLabel* TitleOf(const QWidget& window) {
    return window.findChild<QLabel*>(QStringLiteral("captionLabel"));
}

}  // namespace

RemarkWindow::RemarkWindow(QWidget* mainView, const QString& name)
    : PanelFrame(mainView, name, {TextIds::IDC_BT_HELP2, TextIds::IDC_BT_CLOSE2}) {
    SkinPanel("flt.fleetrremarkdlg", 1, "trv.static.title");
    AddHelpAndClose();
    list_ = new RemarkListView(this);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(2 * Skin::kGrid);
    columns->addWidget(list_);
    columns->addWidget(MakeFields(), 1);
    Body()->addLayout(columns, 1);
    Body()->addWidget(MakeButtons());
    ApplySkin();
    ApplyTexts();
    SetResizable();
    adjustSize();
}

QWidget* RemarkWindow::MakeFields() {
    auto* fields = new QWidget(this);
    subject_ = new QLineEdit(fields);
    subject_->setObjectName(QStringLiteral("remarkSubject"));
    Skin::SkinWindow(*subject_, Skin::ControlClass::EditField, "flt.edit_292");
    subject_->setMinimumWidth(kFieldWidth);
    subject_->setFixedHeight(Skin::kControlHeight);
    body_ = new QPlainTextEdit(fields);
    body_->setObjectName(QStringLiteral("remarkBody"));
    Skin::SkinWindow(*body_, Skin::ControlClass::EditField, "flt.edit_292_278");
    body_->setTabChangesFocus(true);
    body_->setMinimumWidth(kFieldWidth);
    body_->setMinimumHeight(kBodyHeight);
    auto* rows = new QVBoxLayout(fields);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Skin::kGrid);
    rows->addWidget(subject_);
    rows->addWidget(body_, 1);
    return fields;
}

QToolButton* RemarkWindow::MakeTool(const char* name, const QKeySequence& key) {
    auto* made = new QToolButton(this);
    made->setObjectName(QString::fromLatin1(name));
    made->setFixedSize(Skin::kControlHeight + 2, Skin::kControlHeight);
    made->setFocusPolicy(Qt::TabFocus);
    TieKey(*made, key);
    return made;
}

QWidget* RemarkWindow::MakeButtons() {
    auto* buttons = new QWidget(this);
    add_ = MakeTool("addRemarkButton", QKeySequence(Qt::CTRL | Qt::Key_N));
    TieText(*add_, TextIds::IDC_BTN_ADD);
    Skin::SkinWindow(*add_, Skin::ControlClass::PushButton, "flt.btn.add");
    sort_ = MakeTool("sortRemarksButton", QKeySequence(Qt::CTRL | Qt::Key_R));
    TieText(*sort_, TextIds::IDC_BTN_SORT);
    Skin::SkinWindow(*sort_, Skin::ControlClass::PushButton, "flt.btn.sort");
    sort_->setCheckable(true);
    save_ = new QPushButton(this);
    save_->setObjectName(QStringLiteral("saveRemarkButton"));
    TieText(*save_, TextIds::IDS_VIEW_REMARKSAVE);
    TieKey(*save_, QKeySequence(Qt::CTRL | Qt::Key_S));
    Skin::SkinWindow(*save_, Skin::ControlClass::PushButton, "trv_btn_59");
    save_->setProperty("primary", true);
    save_->setAutoDefault(false);
    save_->setFocusPolicy(Qt::TabFocus);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * Skin::kGrid);
    row->addWidget(add_);
    row->addWidget(sort_);
    row->addStretch(1);
    row->addWidget(save_);
    return buttons;
}

void RemarkWindow::Attach(CRemarkPanel* panel) {
    SetReports({[panel] { panel->OnHelp(); }, [panel] { panel->OnClose(); }, {}, KeyClosesDialog});
    RemarkEditing& editing = panel->Editing();
    list_->SetReports({[panel](int kind, std::uint32_t position, const std::string& item) {
                           panel->List().OnItemEvent(kind, position, item);
                       },
                       [&editing](int row) { editing.Select(row); }});
    QObject::connect(subject_, &QLineEdit::textEdited, this,
                     [&editing](const QString& text) { editing.OnSubjectTyped(text.toStdString()); });
    new KeyReport(*subject_, [&editing](KeyPress press) { return editing.OnSubjectKey(press.key); });
    QObject::connect(body_, &QPlainTextEdit::textChanged, this,
                     [this, &editing] { editing.OnBodyTyped(body_->toPlainText().toStdString()); });
    QObject::connect(add_, &QToolButton::clicked, this, [panel] { panel->New(); });
    QObject::connect(sort_, &QToolButton::clicked, this, [panel] { panel->OnSort(); });
    QObject::connect(save_, &QPushButton::clicked, this, [&editing] { editing.SaveClick(); });
}

void RemarkWindow::ShowRows(const std::vector<RemarkRow>& rows, int current) {
    list_->ShowRows(rows, current);
}

void RemarkWindow::ShowState(const RemarkState& state) {
    state_ = state;
    for (QWidget* field : std::initializer_list<QWidget*>{subject_, body_}) {
        field->setEnabled(state.canEdit);
    }
    add_->setEnabled(state.canAdd);
    save_->setEnabled(state.canSave);
    sort_->setChecked(state.newestFirst);
    sort_->setIcon(Skin::MakeIcon(state.newestFirst ? "sort-down" : "sort-up"));
    Skin::Describe(add_, ViewText(TextIds::IDC_BTN_ADD));
    if (!state.canAdd) {
        add_->setToolTip(add_->toolTip() + QStringLiteral(": ") + ViewText(TextIds::IDS_VIEW_REMARKADDING));
    }
    Skin::Describe(save_, ViewText(TextIds::IDS_VIEW_REMARKSAVE));
    if (!state.canSave) {
        save_->setToolTip(save_->toolTip() + QStringLiteral(": ") + ViewText(TextIds::IDS_VIEW_NOCHANGES));
    }
}

void RemarkWindow::ShowTexts(const std::string& subject, const std::string& body) {
    const QSignalBlocker silent(body_);
    subject_->setText(QString::fromStdString(subject));
    body_->setPlainText(QString::fromStdString(body));
}

int RemarkWindow::TitleWidth(const std::string& text) const {
    QLabel* title = TitleOf(*this);
    // Before the first showing it has not the font of its style yet.
    title->ensurePolished();
    return title->fontMetrics().horizontalAdvance(QString::fromStdString(text));
}

void RemarkWindow::ShowTitle(const RemarkTitle& title) {
    ShowCaption(title.text, false);
    TitleOf(*this)->setFixedSize(title.width, title.height);
}

void RemarkWindow::BringRowIntoView(int row) {
    list_->scrollTo(list_->model()->index(row, 0));
}

void RemarkWindow::FocusSubject() {
    subject_->setFocus();
}

void RemarkWindow::FocusBody() {
    body_->setFocus();
}

void RemarkWindow::FocusFirst() {
    if (focusWidget() == nullptr || !focusWidget()->isEnabled()) {
        list_->setFocus();
    }
}

void RemarkWindow::ApplyClassTexts(QWidget& /*window*/) {
    DescribeHelpAndClose();
    list_->ApplyTexts();
    Skin::Describe(sort_, ViewText(TextIds::IDC_BTN_SORT));
    Skin::Describe(subject_, ViewText(TextIds::IDS_VIEW_REMARKSUBJECT));
    subject_->setPlaceholderText(ViewText(TextIds::IDS_VIEW_REMARKSUBJECT));
    Skin::Describe(body_, ViewText(TextIds::IDS_VIEW_REMARKBODY));
    body_->setPlaceholderText(ViewText(TextIds::IDS_VIEW_REMARKBODY));
    ShowState(state_);
}

void RemarkWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    ShowState(state_);
    list_->viewport()->update();
}

}  // namespace Tarvik::Seaplan
