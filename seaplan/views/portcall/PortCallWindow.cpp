// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallWindow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include <tarvik/interface/HelpRequest.h>
#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/views/ViewText.h"

namespace Tarvik::Seaplan {

PortCallWindow::PortCallWindow(QWidget* mainView, QWidget* tree)
    : Skin::ToolWindow(mainView, QStringLiteral("portCallPanel")), tree_(tree) {
    help_ = AddCaptionButton("helpButton", "help");
    close_ = AddCaptionButton("closeButton", "close");
    model_ = new PortCallModel(this);
    table_ = new PortCallTableView(this);
    table_->setModel(model_);
    table_->ApplyWidths();
    table_->setMinimumHeight(34 + 9 * 20 + 4);
    Body()->addWidget(table_, 1);
    MakeSummary();
    MakeButtons();
    MakeEditors();
    MakePopups();
    ApplyTexts();
    adjustSize();
    // A press anywhere outside the table ends the editing.
    qApp->installEventFilter(this);
}

PortCallWindow::~PortCallWindow() = default;

PortCallWindow::Figure PortCallWindow::MakeFigure(const char* name, UnitKind kind) {
    Figure figure;
    figure.caption = new QLabel(this);
    figure.caption->setProperty("secondary", true);
    figure.value = new QLabel(this);
    figure.value->setObjectName(QString::fromLatin1(name));
    figure.value->setMinimumWidth(56);
    figure.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure.unit = new QToolButton(this);
    figure.unit->setObjectName(QString::fromLatin1(name) + QStringLiteral("Unit"));
    figure.unit->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // The arrow stands behind the unit.
    figure.unit->setLayoutDirection(Qt::RightToLeft);
    figure.unit->setFocusPolicy(Qt::TabFocus);
    KeepIcon(figure.unit, "chevron-down");
    QObject::connect(figure.unit, &QToolButton::clicked, this,
                     [this, button = figure.unit, kind] { OpenUnitMenu(button, kind); });
    return figure;
}

void PortCallWindow::MakeSummary() {
    auto* row = new QHBoxLayout();
    row->setSpacing(Skin::kGrid);
    speed_ = MakeFigure("averageSpeed", UnitKind::Speed);
    distance_ = MakeFigure("totalDistance", UnitKind::Distance);
    time_ = MakeFigure("totalTime", UnitKind::Time);
    for (const Figure* figure : {&speed_, &distance_, &time_}) {
        row->addWidget(figure->caption);
        row->addWidget(figure->value);
        row->addWidget(figure->unit);
        row->addSpacing(5 * Skin::kGrid);
    }
    row->addStretch(1);
    zone_ = new QLabel(this);
    zone_->setObjectName(QStringLiteral("zoneLabel"));
    zone_->setProperty("secondary", true);
    row->addWidget(zone_);
    Body()->addLayout(row);
}

void PortCallWindow::MakeButtons() {
    auto* row = new QHBoxLayout();
    row->setSpacing(2 * Skin::kGrid);
    const auto tool = [this](const char* name, const char* icon) {
        auto* made = new QToolButton(this);
        made->setObjectName(QString::fromLatin1(name));
        made->setFixedSize(Skin::kControlHeight + 2, Skin::kControlHeight);
        made->setFocusPolicy(Qt::TabFocus);
        KeepIcon(made, icon);
        return made;
    };
    save_ = tool("saveButton", "save");
    clear_ = tool("clearButton", "clear");
    book_ = new QPushButton(this);
    book_->setObjectName(QStringLiteral("positionBookButton"));
    calculate_ = new QPushButton(this);
    calculate_->setObjectName(QStringLiteral("calculateButton"));
    calculate_->setProperty("primary", true);
    for (QPushButton* button : {book_, calculate_}) {
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::TabFocus);
    }
    row->addWidget(save_);
    row->addWidget(clear_);
    row->addStretch(1);
    row->addWidget(book_);
    row->addWidget(calculate_);
    save_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    close_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    help_->setShortcut(QKeySequence(Qt::Key_F1));
    Body()->addLayout(row);
}

void PortCallWindow::MakeEditors() {
    constexpr const char* kNames[] = {"portEditor", "speedEditor", "weatherEditor"};
    constexpr int kMostCharacters = 30;
    for (int i = 0; i < 3; ++i) {
        editors_[i] = new QLineEdit(table_->viewport());
        editors_[i]->setObjectName(QString::fromLatin1(kNames[i]));
        editors_[i]->setMaxLength(kMostCharacters);
        editors_[i]->hide();
        editors_[i]->installEventFilter(this);
    }
}

void PortCallWindow::MakePopups() {
    matches_ = new QListWidget(this);
    matches_->setObjectName(QStringLiteral("portMatches"));
    matches_->setFocusPolicy(Qt::NoFocus);
    matches_->hide();
    purposes_ = new QListWidget(this);
    purposes_->setObjectName(QStringLiteral("purposeList"));
    purposes_->hide();
    purposes_->installEventFilter(this);
    calendar_ = new CalendarPopup(this);
}

void PortCallWindow::Attach(CPortCallPanelDlg* panel) {
    panel_ = panel;
    table_->SetReports({[panel](int row, int column) { panel->OnCellClicked(row, column); },
                        [panel](int row, const std::string& name) { panel->OnItemImage(row, name); },
                        [panel] { panel->OnTableLeft(); }});
    QObject::connect(help_, &QToolButton::clicked, this, [panel] { panel->OnHelp(); });
    QObject::connect(close_, &QToolButton::clicked, this, [panel] { panel->OnClose(); });
    QObject::connect(save_, &QToolButton::clicked, this, [panel] { panel->OnSave(); });
    QObject::connect(clear_, &QToolButton::clicked, this, [panel] { panel->OnClear(); });
    QObject::connect(calculate_, &QPushButton::clicked, this, [panel] { panel->OnCalculate(); });
    QObject::connect(editors_[0], &QLineEdit::textEdited, this,
                     [panel](const QString& typed) { panel->OnPortTyped(typed.toStdString()); });
    QObject::connect(matches_, &QListWidget::itemClicked, this,
                     [this](const QListWidgetItem* item) { TakeMatch(item); });
    QObject::connect(purposes_, &QListWidget::itemClicked, this,
                     [this, panel](QListWidgetItem* item) { panel->OnPurposeChosen(purposes_->row(item)); });
    calendar_->SetChosen(
        [panel](const Util::_datetime_t& time) { panel->OnTimeChosen(time.fmt(kTimeFormat)); });
    ShowTable(panel->Table());
    ShowState(panel->State());
}

void PortCallWindow::ShowTable(const PortCallTable& table) {
    model_->Show(table);
    table_->ApplyWidths();
}

void PortCallWindow::SetButton(QAbstractButton* button, bool on, TextId tip, TextId whyNot) {
    button->setEnabled(on);
    Skin::Describe(button, ViewText(tip));
    if (!on) {
        button->setToolTip(ViewText(tip) + QStringLiteral(": ") + ViewText(whyNot));
    }
}

void PortCallWindow::ShowState(const PortCallState& state) {
    state_ = state;
    SetCaption(QString::fromStdString(state.caption));
    SetChangedMark(state.changed, ViewText(TextId::IDS_VIEW_CHANGED));
    calculate_->setText(QString::fromStdString(state.calculateText));
    // A new text takes the button's shortcut away; the hint tells it.
    calculate_->setShortcut(QKeySequence(Qt::Key_F9));
    SetButton(save_, state.canSave, TextId::IDS_PORTCALL_SAVE, TextId::IDS_VIEW_NOCHANGES);
    SetButton(clear_, state.canClear, TextId::IDS_PORTCALL_CLEAR, TextId::IDS_VIEW_CLEAROFF);
    SetButton(calculate_, state.canCalculate, TextId::IDS_PORTCALL_COMPUTE, TextId::IDS_VIEW_NEEDTWOPORTS);
    // The position book has no window yet.
    SetButton(book_, false, TextId::IDS_PORTCALL_POSTBOOK,
              state.canOpenBook ? TextId::IDS_VIEW_NOTYET : TextId::IDS_VIEW_BOOKNEEDSVOYAGE);
    speed_.value->setText(QString::fromStdString(state.averageSpeed));
    distance_.value->setText(QString::fromStdString(state.totalDistance));
    time_.value->setText(QString::fromStdString(state.totalTime));
    speed_.unit->setText(QString::fromStdString(state.speedUnit));
    distance_.unit->setText(QString::fromStdString(state.distanceUnit));
    time_.unit->setText(QString::fromStdString(state.timeUnit));
    zone_->setText(state.zone.empty()
                       ? QString()
                       : ViewText(TextId::IDS_VIEW_ZONE) + u' ' + QString::fromStdString(state.zone));
    ApplyTitles();
}

/// The unit on show of a quantity, null for none.
const std::string* PortCallWindow::UnitTextOf(UnitKind kind) const {
    return kind == UnitKind::Speed      ? &state_.speedUnit
           : kind == UnitKind::Distance ? &state_.distanceUnit
           : kind == UnitKind::Time     ? &state_.timeUnit
                                        : nullptr;
}

void PortCallWindow::ApplyTitles() {
    QStringList titles;
    for (const PortCallColumnEntry& column : kPortCallColumns) {
        QString title = QString::fromStdString(TextOfKey(column.title));
        if (const std::string* unit = UnitTextOf(column.unit); unit != nullptr) {
            title += u'\n' + QString::fromStdString(*unit);
        }
        titles.append(title);
    }
    model_->SetTitles(titles);
}

void PortCallWindow::ApplyTexts() {
    Skin::Describe(help_, ViewText(TextId::IDS_PORTCALL_HELP));
    Skin::Describe(close_, ViewText(TextId::IDS_PORTCALL_CLOSE));
    book_->setText(ViewText(TextId::IDS_PORTCALL_POSTBOOK));
    table_->setAccessibleName(ViewText(TextId::IDS_VIEW_TABLE));
    const std::pair<const Figure*, std::pair<TextId, TextId>> figures[] = {
        {&speed_, {TextId::IDS_PORTCALL_AVARGERSPD, TextId::IDS_VIEW_AVERAGEHINT}},
        {&distance_, {TextId::IDS_PORTCALL_TOTLEDISTANCE, TextId::IDS_VIEW_DISTANCEHINT}},
        {&time_, {TextId::IDS_PORTCALL_TOTALTIME, TextId::IDS_VIEW_TIMEHINT}}};
    for (const auto& [figure, ids] : figures) {
        figure->caption->setText(ViewText(ids.first));
        Skin::Describe(figure->value, ViewText(ids.first));
        Skin::Describe(figure->unit, ViewText(ids.second));
    }
    Skin::Describe(editors_[0], ViewText(TextId::IDS_VIEW_PORTEDITOR));
    Skin::Describe(editors_[1], ViewText(TextId::IDS_VIEW_SPEEDEDITOR));
    Skin::Describe(editors_[2], ViewText(TextId::IDS_VIEW_WEATHEREDITOR));
    Skin::Describe(purposes_, ViewText(TextId::IDS_VIEW_PURPOSES));
    Skin::Describe(matches_, ViewText(TextId::IDS_VIEW_RENAMEHINT));
    model_->SetUnknownPortTip(ViewText(TextId::IDS_VIEW_UNKNOWNPORT));
    calendar_->ApplyTexts();
    ShowState(state_);
}

void PortCallWindow::OpenUnitMenu(QToolButton* button, UnitKind kind) {
    panel_->OnTableLeft();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("unitMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const char* unit : OfferedUnits(kind)) {
        menu->addAction(QString::fromLatin1(unit), this,
                        [this, kind, unit] { panel_->ChangeUnit(kind, unit); });
    }
    menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

void PortCallWindow::Show() {
    show();
    raise();
    if (focusWidget() != nullptr && focusWidget()->isVisible()) {
        return;
    }
    if (!table_->currentIndex().isValid()) {
        table_->setCurrentIndex(model_->index(0, ColPort));
    }
    table_->setFocus();
}

void PortCallWindow::SetBusy(bool busy) {
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void PortCallWindow::Hide() {
    hide();
}

void PortCallWindow::PlaceBesideTree() {
    if (tree_ == nullptr) {
        return;
    }
    const QPoint corner = tree_->mapToGlobal(QPoint(tree_->width(), 0));
    move(corner.x() + 9, corner.y() + 30);
}

void PortCallWindow::SelectRow(int row) {
    table_->setCurrentIndex(model_->index(row, ColPort));
}

void PortCallWindow::BringRowIntoView(int row) {
    table_->scrollTo(model_->index(row, ColPort));
}

void PortCallWindow::RequestHelp(const std::string& topic) {
    SendHelpRequest(parentWidget(), topic, 370, 440);
}

void* PortCallWindow::Handle() const {
    return const_cast<PortCallWindow*>(this);
}

void PortCallWindow::ApplySkin() {
    Skin::ToolWindow::ApplySkin();
    calendar_->ApplySkin();
    table_->viewport()->update();
}

void PortCallWindow::SurfacePressed() {
    if (panel_ != nullptr) {
        panel_->OnTableLeft();
    }
}

void PortCallWindow::CloseAsked() {
    if (panel_ != nullptr) {
        panel_->OnClose();
    }
}

}  // namespace Tarvik::Seaplan
