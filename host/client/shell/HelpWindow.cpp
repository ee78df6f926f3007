// SPDX-License-Identifier: MIT
#include "host/client/shell/HelpWindow.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace Tarvik::Client {

namespace {

constexpr int kLeastWidth = 460;
constexpr int kHeight = 520;

/// A key of windows and chart; the toolbar's come from the toolbar itself.
struct KeyText {
    const char* keys;
    const char* text;  ///< in the section "Keys"
};
constexpr KeyText kWindowKeys[] = {{"F1", "HELP"},
                                   {"F6, Shift+F6", "NEXT_WINDOW"},
                                   {"Tab, Shift+Tab", "NEXT_CONTROL"},
                                   {"Esc", "CLOSE"},
                                   {"Ctrl+Q", "QUIT"}};
constexpr KeyText kChartKeys[] = {
    {"Ctrl+G", "GO_TO"},           {"+, −", "ZOOM"},       {"← → ↑ ↓", "MOVE"},
    {"Shift+← → ↑ ↓", "MOVE_FAR"}, {"Home", "SHOW_ALL"},   {"Menu", "PLACE_MENU"},
    {"Backspace", "MEASURE_BACK"}, {"Esc", "MEASURE_END"}, {"T", "TIME_SLIDER"},
    {", .", "TIME_STEP"},          {"Space", "TIME_PLAY"}};
/// The panels' own, told by their topics.
constexpr KeyText kPanelKeys[] = {{"Insert", "ADD"},        {"F2", "RENAME"},   {"Delete", "DELETE"},
                                  {"Ctrl+F", "FIND"},       {"Ctrl+Z", "UNDO"}, {"Ctrl+S", "SAVE"},
                                  {"F9", "CALCULATE"},      {"Ctrl+B", "BOOK"}, {"Ctrl+Shift+D", "DUPLICATE"},
                                  {"Ctrl+W", "CLOSE_PANEL"}};

}  // namespace

HelpWindow::HelpWindow(QWidget* parent, Words words)
    : QDialog(parent),
      words_(std::move(words)),
      topic_(new QLabel(this)),
      search_(new QLineEdit(this)),
      keys_(new QTreeWidget(this)) {
    setObjectName("help");
    topic_->setObjectName("helpTopic");
    topic_->setWordWrap(true);
    topic_->setTextFormat(Qt::PlainText);
    search_->setObjectName("helpSearch");
    search_->setClearButtonEnabled(true);
    keys_->setObjectName("helpKeys");
    keys_->setColumnCount(2);
    keys_->setRootIsDecorated(false);
    keys_->setHeaderHidden(true);
    keys_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto* column = new QVBoxLayout(this);
    column->addWidget(topic_);
    column->addWidget(search_);
    column->addWidget(keys_, 1);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Filter);
}

void HelpWindow::ShowTopic(const QString& topic, const std::vector<KeyLine>& tools, int width) {
    const QByteArray key = "HELP_" + topic.toUtf8();
    const QString text = words_("Client", key.constData());
    setWindowTitle(words_("Client", "HELP_TITLE"));
    topic_->setText(text == QString::fromUtf8(key) ? words_("Client", "HELP_GENERAL") : text);
    search_->setPlaceholderText(words_("Keys", "SEARCH"));
    search_->setAccessibleName(words_("Keys", "SEARCH"));
    keys_->setAccessibleName(words_("Keys", "TITLE"));
    search_->clear();
    Fill(tools);
    resize(std::max(kLeastWidth, width), kHeight);
    show();
    raise();
    activateWindow();
    search_->setFocus();
}

void HelpWindow::Fill(const std::vector<KeyLine>& tools) {
    keys_->clear();
    const auto lines = [this](const auto& known) {
        std::vector<KeyLine> all;
        for (const KeyText& key : known) {
            all.emplace_back(QString::fromUtf8(key.keys), words_("Keys", key.text));
        }
        return all;
    };
    std::vector<KeyLine> windows = lines(kWindowKeys);
    windows.insert(windows.end(), tools.begin(), tools.end());
    AddGroup(words_("Keys", "WINDOWS"), windows);
    AddGroup(words_("Keys", "CHART"), lines(kChartKeys));
    AddGroup(words_("Keys", "PANELS"), lines(kPanelKeys));
    keys_->expandAll();
}

void HelpWindow::AddGroup(const QString& title, const std::vector<KeyLine>& lines) {
    auto* group = new QTreeWidgetItem(keys_, {title});
    group->setFirstColumnSpanned(true);
    QFont bold = keys_->font();
    bold.setBold(true);
    group->setFont(0, bold);
    for (const auto& [keys, text] : lines) {
        new QTreeWidgetItem(group, {keys, text});
    }
}

void HelpWindow::Filter(const QString& text) {
    const QString wanted = text.trimmed();
    for (int g = 0; g < keys_->topLevelItemCount(); ++g) {
        QTreeWidgetItem* group = keys_->topLevelItem(g);
        bool any = false;
        for (int i = 0; i < group->childCount(); ++i) {
            QTreeWidgetItem* line = group->child(i);
            const bool fits = line->text(0).contains(wanted, Qt::CaseInsensitive) ||
                              line->text(1).contains(wanted, Qt::CaseInsensitive);
            line->setHidden(!fits);
            any = any || fits;
        }
        group->setHidden(!any);
    }
}

}  // namespace Tarvik::Client
