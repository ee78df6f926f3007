// SPDX-License-Identifier: MIT
#include "host/client/shell/GuideView.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <algorithm>

#include <tarvik/skin/Palette.h>

namespace Tarvik::Client {

namespace {

constexpr int kPictureWidth = 640;       ///< where the page has room
constexpr int kLeastPictureWidth = 320;  ///< below it nothing can be read
constexpr int kCellPadding = 4;
constexpr int kSpace = 8;  ///< behind a paragraph
constexpr int kHeadingSpace = 16;
constexpr std::size_t kNone = static_cast<std::size_t>(-1);

}  // namespace

QStringList SearchWords(const QString& text) {
    // The blank of Chinese texts is one as well.
    QString words = text;
    return words.replace(QChar(0x3000), ' ').split(' ', Qt::SkipEmptyParts);
}

QString PlainText(const QString& markdown) {
    QTextDocument document;
    document.setMarkdown(markdown);
    return document.toPlainText();
}

int CountHits(const QString& text, const QStringList& words) {
    int hits = 0;
    for (const QString& word : words) {
        const auto found = text.count(word, Qt::CaseInsensitive);
        if (found == 0) {
            return 0;
        }
        hits += static_cast<int>(found);
    }
    return hits;
}

GuideView::GuideView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDocumentMargin(3.0 * kCellPadding);
}

void GuideView::ShowPage(const QString& markdown, const QString& folder) {
    folder_ = folder;
    hits_.clear();
    setMarkdown(markdown);
    LayTables();
    SpaceBlocks();
    setExtraSelections({});
    verticalScrollBar()->setValue(0);
}

void GuideView::LayTables() {
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) {
            continue;
        }
        QTextTableFormat format = table->format();
        format.setBorder(0);
        format.setCellSpacing(0);
        format.setCellPadding(kCellPadding);
        format.setTopMargin(kCellPadding);
        format.setBottomMargin(kCellPadding);
        table->setFormat(format);
        for (int column = 0; column < table->columns(); ++column) {
            QTextTableCell head = table->cellAt(0, column);
            QTextCharFormat ground = head.format();
            ground.setBackground(Skin::Colour(Skin::Role::List));
            head.setFormat(ground);
        }
    }
}

void GuideView::SpaceBlocks() {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextCursor at(block);
        if (at.currentTable() != nullptr) {
            continue;
        }
        QTextBlockFormat format = block.blockFormat();
        const bool heading = format.headingLevel() > 0;
        format.setTopMargin(heading && block.blockNumber() > 0 ? kHeadingSpace : 0);
        format.setBottomMargin(block.textList() != nullptr ? kCellPadding : kSpace);
        at.setBlockFormat(format);
    }
}

void GuideView::ShowHeading(std::size_t number) {
    std::size_t before = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0) {
            continue;
        }
        if (before == number) {
            setTextCursor(QTextCursor(block));
            const QRectF place = document()->documentLayout()->blockBoundingRect(block);
            verticalScrollBar()->setValue(static_cast<int>(place.top()));
            return;
        }
        ++before;
    }
}

void GuideView::MarkWords(const QStringList& words) {
    hits_.clear();
    for (const QString& word : words) {
        for (QTextCursor at = document()->find(word); !at.isNull(); at = document()->find(word, at)) {
            hits_.push_back(at);
        }
    }
    std::sort(hits_.begin(), hits_.end());
    ShowMarks(kNone);
}

void GuideView::ShowHit(std::size_t number) {
    QTextCursor at = hits_.at(number);
    at.clearSelection();
    setTextCursor(at);
    ensureCursorVisible();
    ShowMarks(number);
}

void GuideView::ShowMarks(std::size_t current) {
    QList<ExtraSelection> marks;
    marks.reserve(static_cast<qsizetype>(hits_.size()));
    for (std::size_t i = 0; i < hits_.size(); ++i) {
        ExtraSelection mark;
        mark.cursor = hits_[i];
        mark.format.setBackground(Skin::Colour(i == current ? Skin::Role::Accent : Skin::Role::Highlight));
        mark.format.setForeground(Skin::Colour(i == current ? Skin::Role::AccentText : Skin::Role::Text));
        marks.append(mark);
    }
    setExtraSelections(marks);
}

QVariant GuideView::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource || !name.isRelative()) {
        return {};
    }
    QImage picture(folder_ + "/" + name.path());
    if (picture.isNull()) {
        return {};
    }
    const qreal ratio = devicePixelRatioF();
    // The viewport has its size only once it is shown.
    const int page = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() -
                     static_cast<int>(2 * document()->documentMargin());
    const int pixels = static_cast<int>(std::clamp(page, kLeastPictureWidth, kPictureWidth) * ratio);
    if (picture.width() > pixels) {
        picture = picture.scaledToWidth(pixels, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
    }
    return picture;
}

}  // namespace Tarvik::Client
