// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <utility>
#include <vector>

class QAction;
class QMainWindow;
class QToolBar;

namespace Tarvik::Client {

/// The bar of tools above the chart: texts, icons and shortcuts by the tool's key.
class MainTools {
  public:
    /// One tool: its texts' key, icon, shortcut and what it does.
    struct Tool {
        const char* key;
        const char* icon;
        const char* shortcut;
        std::function<void()> run;
        bool endsGroup = false;  ///< a line stands behind it
        QAction* action = nullptr;
    };
    /// Gives the client's text of a key.
    using Words = std::function<QString(const char* key)>;

    /// The bar is `window`'s; texts and icons come with the first ApplyTexts and ApplyIcons.
    MainTools(QMainWindow& window, std::vector<Tool> tools);

    void ApplyTexts(const Words& word);
    /// Icons in the colours of the theme in force.
    void ApplyIcons();
    /// The keys of the tools on show, each with its tool's text, in their order.
    std::vector<std::pair<QString, QString>> Keys() const;
    /// The tool of a key, null when there is none.
    QAction* Action(const char* key) const;

  private:
    QToolBar* bar_;
    std::vector<Tool> tools_;
};

}  // namespace Tarvik::Client
