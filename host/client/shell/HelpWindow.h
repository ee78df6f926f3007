// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "host/client/services/Guide.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace Tarvik::Client {

/// Pixels that a window manager may put around a window, at both sides and above and below together.
inline constexpr QSize kFrame(8, 40);

class GuideView;

/// The user's guide: its pages, with the keys of all windows, and a search through all of them. One window
/// that stays beside the others.
class HelpWindow final : public QDialog {
    Q_OBJECT

  public:
    /// Gives the text of a key of the client's section of the language files.
    using Words = std::function<QString(const char* key)>;

    HelpWindow(QWidget* parent, Words words, std::string folder);
    /// Takes the guide of a language and the texts in force; the page on show stays the same.
    void Load(const std::string& language);
    /// Comes up with the heading of a topic ("func033"); the first page for an unknown one.
    void ShowTopic(const QString& topic);

  protected:
    /// Arrows and page keys in the field move the text.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Lay();
    void Connect();
    void ShowPage(std::size_t page);
    /// Shows the page of a file, or the one on show for an unknown one, and the heading of a mark on it.
    void Follow(const QString& file, const QString& mark);
    void Search();
    /// Goes to the next hit, or with -1 to the one before, through all pages.
    void Step(int by);
    void TellHit();
    QString MarkdownOf(std::size_t page) const;

    Words words_;
    std::string folder_;
    Guide guide_;
    std::size_t page_ = 0;
    std::size_t hit_ = 0;  ///< on the page, the one that is looked at
    QLineEdit* search_;
    QLabel* found_;
    QListWidget* pages_;
    GuideView* text_;
};

}  // namespace Tarvik::Client
