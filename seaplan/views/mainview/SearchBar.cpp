// SPDX-License-Identifier: MIT
#include "seaplan/views/mainview/SearchBar.h"

#include <QGridLayout>
#include <QStringList>
#include <QTimer>
#include <utility>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/search/TreeSearch.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

struct FilterLine {
    VoyageFilter filter;
    TextId text;
    const char* name;
};

constexpr FilterLine kFilters[] = {
    {VoyageFilter::All, TextIds::IDS_VIEW_FINDALL, "findAll"},
    {VoyageFilter::UnderWay, TextIds::IDS_VIEW_FINDUNDERWAY, "findUnderWay"},
    {VoyageFilter::ArrivingSoon, TextIds::IDS_VIEW_FINDARRIVING, "findArriving"},
    {VoyageFilter::WithoutRoute, TextIds::IDS_VIEW_FINDNOROUTE, "findWithoutRoute"}};

std::map<TextId, const char*> FilterNames() {
    std::map<TextId, const char*> names;
    for (const FilterLine& line : kFilters) {
        names[line.text] = line.name;
    }
    return names;
}

std::vector<Choice> ChoicesOf(VoyageFilter filter) {
    std::vector<Choice> choices;
    for (const FilterLine& line : kFilters) {
        choices.push_back({line.text, line.filter == filter});
    }
    return choices;
}

/// A text with numbers; a language whose text leaves one out is no fault.
QString Counted(TextId id, const std::vector<int>& numbers) {
    std::vector<std::string> values;
    values.reserve(numbers.size());
    for (const int number : numbers) {
        values.push_back(std::to_string(number));
    }
    return QString::fromStdString(Text(id, values));
}

/// What the search has found, in words; empty while nothing is asked.
QString ReportOf(const SearchState& state) {
    QStringList parts;
    for (const FilterLine& line : kFilters) {
        if (line.filter == state.filter && line.filter != VoyageFilter::All) {
            parts.append(ViewText(line.text));
        }
    }
    if (state.current > 0) {
        parts.append(Counted(TextIds::IDS_VIEW_FINDPLACE, {state.current, state.found}));
    } else if (state.found > 0) {
        parts.append(Counted(TextIds::IDS_VIEW_FINDCOUNT, {state.found}));
    } else if (state.unread == 0) {
        parts.append(ViewText(TextIds::IDS_VIEW_FINDNONE));
    }
    if (state.unread > 0) {
        parts.append(Counted(TextIds::IDS_VIEW_FINDREADING, {state.unread}));
    }
    return state.asks ? parts.join(QStringLiteral(" · ")) : QString();
}

}  // namespace

SearchBar::SearchBar(QWidget* parent, QWidget* tree)
    : QWidget(parent),
      tree_(tree),
      field_(new QLineEdit(this)),
      filterButton_(new QToolButton(this)),
      report_(new QLabel(this)) {
    constexpr int kFieldHeight = 26;
    setObjectName(QStringLiteral("searchBar"));
    field_->setObjectName(QStringLiteral("searchField"));
    field_->setFixedHeight(kFieldHeight);
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    filterButton_->setObjectName(QStringLiteral("searchFilter"));
    filterButton_->setFixedSize(kFieldHeight, kFieldHeight);
    filterButton_->setFocusPolicy(Qt::TabFocus);
    filters_ = new ChoiceBox(this, ChoiceBox::Kind::Radios, filterButton_, FilterNames());
    report_->setObjectName(QStringLiteral("searchReport"));
    report_->setProperty("secondary", true);
    report_->setWordWrap(true);
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(0, 0, 0, 4);
    rows->setSpacing(4);
    rows->addWidget(field_, 0, 0);
    rows->addWidget(filterButton_, 0, 1);
    rows->addWidget(report_, 1, 0, 1, 2);
    ApplySkin();
    hide();
}

void SearchBar::Attach(TreeSearch* panel) {
    constexpr int kPopupHeight = 112;
    panel_ = panel;
    connect(field_, &QLineEdit::textChanged, this,
            [this](const QString& text) { panel_->OnTyped(text.toStdString()); });
    connect(filterButton_, &QToolButton::clicked, this, [this] {
        filters_->SetChoices(ChoicesOf(state_.filter));
        filters_->Show(kChoiceWidth, kPopupHeight);
    });
    filters_->SetReport([this](TextId id) {
        filters_->Hide();
        // The next Enter goes to the first answer.
        field_->setFocus();
        for (const FilterLine& line : kFilters) {
            if (line.text == id) {
                panel_->OnFilter(line.filter);
            }
        }
    });
}

void SearchBar::ApplyTexts() {
    Skin::Describe(field_, ViewText(TextIds::IDS_VIEW_FINDHINT));
    field_->setPlaceholderText(ViewText(TextIds::IDS_VIEW_FINDHINT));
    Skin::Describe(filterButton_, ViewText(TextIds::IDS_VIEW_FINDFILTER));
    Report();
}

void SearchBar::ApplySkin() {
    filterButton_->setIcon(Skin::MakeIcon("filter"));
    filters_->ApplySkin();
}

void SearchBar::Report() {
    report_->setText(ReportOf(state_));
    report_->setVisible(state_.asks);
}

void SearchBar::OpenSearch(const SearchState& state) {
    ShowSearch(state);
    show();
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void SearchBar::ShowSearch(const SearchState& state) {
    state_ = state;
    const QString text = QString::fromStdString(state.text);
    if (field_->text() != text) {
        field_->setText(text);
    }
    Report();
}

void SearchBar::CloseSearch() {
    ShowSearch({});
    filters_->Hide();
    hide();
    tree_->setFocus();
}

void SearchBar::LeaveField() {
    tree_->setFocus();
}

void SearchBar::AskForTime() {
    if (!std::exchange(asked_, true)) {
        QTimer::singleShot(0, this, [this] {
            asked_ = false;
            panel_->OnIdle();
        });
    }
}

bool SearchBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || panel_ == nullptr || event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto& press = *static_cast<QKeyEvent*>(event);
    return panel_->OnKey(PressOf(press).key, press.modifiers().testFlag(Qt::ShiftModifier));
}

}  // namespace Tarvik::Seaplan
