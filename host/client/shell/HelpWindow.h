// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;
class QTreeWidget;

namespace Tarvik::Client {

/// Help on a topic, and all keys of the client, which can be searched. One window that stays beside the
/// others.
class HelpWindow final : public QDialog {
    Q_OBJECT

  public:
    /// A key, as "Ctrl+L", and what it does.
    using KeyLine = std::pair<QString, QString>;
    /// Gives the text of a key in a section of the language files; the key itself where there is none.
    using Words = std::function<QString(const char* section, const char* key)>;

    HelpWindow(QWidget* parent, Words words);
    /// Shows a topic ("func033"; an unknown one gets the general help) over the keys: `tools` are those of
    /// the toolbar.
    void ShowTopic(const QString& topic, const std::vector<KeyLine>& tools, int width);

  private:
    void Fill(const std::vector<KeyLine>& tools);
    void AddGroup(const QString& title, const std::vector<KeyLine>& lines);
    void Filter(const QString& text);

    Words words_;
    QLabel* topic_;
    QLineEdit* search_;
    QTreeWidget* keys_;
};

}  // namespace Tarvik::Client
