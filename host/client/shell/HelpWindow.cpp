// SPDX-License-Identifier: MIT
#include "host/client/shell/HelpWindow.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "host/client/services/LanguageFiles.h"
#include "host/client/shell/GuideView.h"

namespace Tarvik::Client {

namespace {

constexpr QSize kUsualSize(940, 600);
constexpr int kListWidth = 220;

}  // namespace

HelpWindow::HelpWindow(QWidget* parent, Words words, std::string folder)
    : QDialog(parent),
      words_(std::move(words)),
      folder_(std::move(folder)),
      search_(new QLineEdit(this)),
      found_(new QLabel(this)),
      pages_(new QListWidget(this)),
      text_(new GuideView(this)) {
    setObjectName("help");
    search_->setObjectName("helpSearch");
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    found_->setObjectName("helpFound");
    pages_->setObjectName("helpPages");
    text_->setObjectName("helpText");
    Lay();
    Connect();
    resize(kUsualSize.boundedTo(screen()->availableSize() - kFrame));
    // The first page is read before the window is shown.
    layout()->activate();
}

void HelpWindow::Lay() {
    auto* left = new QVBoxLayout;
    left->addWidget(search_);
    left->addWidget(found_);
    left->addWidget(pages_, 1);
    for (QWidget* narrow : std::initializer_list<QWidget*>{search_, found_, pages_}) {
        narrow->setFixedWidth(kListWidth);
    }
    auto* row = new QHBoxLayout(this);
    row->addLayout(left);
    row->addWidget(text_, 1);
}

void HelpWindow::Connect() {
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(pages_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) {
            ShowPage(static_cast<std::size_t>(row));
        }
    });
    connect(text_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { Follow(link.path(), link.fragment()); });
    for (const auto& [key, by] :
         {std::pair(QKeySequence("F3"), 1), std::pair(QKeySequence("Shift+F3"), -1)}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step = by] { Step(step); });
    }
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        search_->setFocus();
        search_->selectAll();
    });
}

void HelpWindow::Load(const std::string& language) {
    guide_ = Guide::Read(folder_, language);
    setWindowTitle(words_("HELP_TITLE"));
    search_->setPlaceholderText(words_("HELP_SEARCH"));
    search_->setAccessibleName(words_("HELP_SEARCH"));
    pages_->setAccessibleName(words_("HELP_PAGES"));
    text_->setAccessibleName(words_("HELP_TEXT"));
    found_->setAccessibleName(words_("HELP_FOUND_NAME"));
    {
        const QSignalBlocker quiet(pages_);
        pages_->clear();
        for (const GuidePage& page : guide_.Pages()) {
            pages_->addItem(QString::fromStdString(page.title));
        }
    }
    ShowPage(page_);
    Search();
}

QString HelpWindow::MarkdownOf(std::size_t page) const {
    return QString::fromStdString(guide_.Pages()[page].markdown);
}

void HelpWindow::ShowTopic(const QString& topic) {
    search_->clear();
    const auto place = guide_.Find(topic.toStdString()).value_or(Guide::Place());
    ShowPage(place.page);
    // The heading's place is known only once the window has its size.
    show();
    text_->ShowHeading(place.heading);
    raise();
    activateWindow();
    search_->setFocus();
}

void HelpWindow::ShowPage(std::size_t page) {
    if (page >= guide_.Pages().size()) {
        return;
    }
    page_ = page;
    {
        const QSignalBlocker quiet(pages_);
        pages_->setCurrentRow(static_cast<int>(page));
    }
    text_->ShowPage(MarkdownOf(page), QString::fromStdString(folder_) + "/" + kReferenceLanguage);
    text_->MarkWords(SearchWords(search_->text()));
    hit_ = 0;
    TellHit();
}

void HelpWindow::Follow(const QString& file, const QString& mark) {
    const auto page = guide_.PageNamed(file.chopped(file.endsWith(".md") ? 3 : 0).toStdString());
    ShowPage(page.value_or(page_));
    if (const auto place = guide_.Find(mark.toStdString()); place && place->page == page_) {
        text_->ShowHeading(place->heading);
    }
}

void HelpWindow::Search() {
    const QStringList words = SearchWords(search_->text());
    std::optional<std::size_t> first;
    bool stays = false;
    for (std::size_t i = 0; i < guide_.Pages().size(); ++i) {
        const int hits = CountHits(PlainText(MarkdownOf(i)), words);
        QListWidgetItem* item = pages_->item(static_cast<int>(i));
        const QString title = QString::fromStdString(guide_.Pages()[i].title);
        item->setText(hits > 0 ? QString("%1 (%2)").arg(title).arg(hits) : title);
        item->setHidden(hits == 0 && !words.isEmpty());
        if (hits > 0) {
            first = first.value_or(i);
            stays = stays || i == page_;
        }
    }
    ShowPage(stays ? page_ : first.value_or(page_));
    if (first) {
        text_->ShowHit(hit_);
    } else {
        text_->MarkWords({});
    }
    TellHit();
}

void HelpWindow::Step(int by) {
    const auto all = guide_.Pages().size();
    const bool stays = by > 0 ? hit_ + 1 < text_->Hits() : hit_ > 0 && text_->Hits() > 0;
    if (stays) {
        hit_ += static_cast<std::size_t>(by);
    } else {
        for (std::size_t turned = 1; turned <= all; ++turned) {
            const std::size_t page = (page_ + all + (by > 0 ? turned : all - turned)) % all;
            if (!pages_->item(static_cast<int>(page))->isHidden()) {
                ShowPage(page);
                break;
            }
        }
        hit_ = by > 0 || text_->Hits() == 0 ? 0 : text_->Hits() - 1;
    }
    if (text_->Hits() > 0) {
        text_->ShowHit(hit_);
    }
    TellHit();
}

void HelpWindow::TellHit() {
    const bool searching = !SearchWords(search_->text()).isEmpty();
    const QString place = words_("HELP_FOUND").arg(hit_ + 1).arg(text_->Hits());
    found_->setText(searching ? (text_->Hits() > 0 ? place : words_("HELP_NOTHING")) : words_("HELP_HINT"));
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != search_ || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    switch (key.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(text_, event);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Step(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            return true;
        default:
            return QDialog::eventFilter(watched, event);
    }
}

void HelpWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    // The colours of a page are those of the theme in which it was laid out.
    if (event->type() == QEvent::PaletteChange && !guide_.Pages().empty()) {
        ShowPage(page_);
    }
}

}  // namespace Tarvik::Client
