// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QSize>
#include <functional>
#include <string>
#include <vector>

#include <tarvik/skin/ToolWindow.h>

class QPushButton;
class QTableWidget;

namespace Tarvik::Skin {

/// A window over what a user keeps, as vessels or own ports: a list, a note below it, and a button for each
/// thing that can be done.
class TARVIK_API ListWindow : public ToolWindow {
  public:
    struct Column {
        const char* title;      ///< key of its text
        int width = 0;          ///< pixels; 0 takes what the others leave
        bool isNumber = false;  ///< stands at the right
    };
    enum class Scope {
        List,  ///< needs no row
        Row,   ///< needs the chosen row
        Apart  ///< needs no row, and stands at the other end
    };
    /// A button; its tip has the text's key with "_TIP" behind it.
    struct Command {
        const char* name;  ///< object name
        const char* text;  ///< key of its text
        QKeySequence key;
        Scope scope = Scope::List;
        std::function<void(const std::string& id)> act;  ///< with the chosen row's id, empty without one
    };
    /// Object names, measures, and where the texts are. Keys that every list has: TITLE, EMPTY for what to do
    /// first, NOTE_NAME for a screen reader, CLOSE, and HELP where it has a topic.
    struct Plan {
        const char* window;
        const char* close;
        const char* table;
        const char* note;
        const char* tableTitle;  ///< key of the list's name for a screen reader
        QSize size;              ///< pixels
        std::vector<Column> columns;
        QString (*word)(const char* key);
        const char* topic = nullptr;  ///< mark of the guide that F1 opens, null for none
    };
    struct Row {
        std::string id;
        std::vector<std::string> texts;  ///< one a column
    };

    /// Enter and a double click do the first command of a row.
    ListWindow(QWidget* parent, Plan plan, std::vector<Command> commands);

    /// Shows these rows; the selection stays on the row with the id that it was on, else it is the last one.
    void ShowRows(const std::vector<Row>& rows);
    /// A line or more below the list; empty for none. A list without rows tells what to do first.
    void Tell(const QString& note);
    /// Texts in the language in force.
    void ApplyTexts();

  protected:
    void CloseAsked() override { hide(); }
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddHelp();
    void MakeTable();
    void AddButton(const Command& command);
    void AddRow(const Row& row);
    void UpdateButtons();
    void OpenChosen();
    std::string Chosen() const;

    Plan plan_;
    std::vector<Command> commands_;
    std::vector<QPushButton*> buttons_;  ///< one a command
    QTableWidget* table_;
    QLabel* note_;
    QToolButton* help_ = nullptr;  ///< null without a topic
    QToolButton* close_ = nullptr;
};

}  // namespace Tarvik::Skin
