// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tarvik/skin/ToolWindow.h>

class QLineEdit;
class QPushButton;

namespace Tarvik::Skin {

/// A small window of fields in which one thing that a user keeps is added or changed. What is wrong stands
/// below the fields, and the window stays open; nothing that was typed is lost without a question.
class TARVIK_API EntryForm : public ToolWindow {
  public:
    struct Field {
        const char* title;  ///< key of its text
        const char* name;   ///< object name
    };
    /// Object names, measures, and where the texts are. Keys that every form has: ADD_TITLE, CHANGE_TITLE,
    /// FAULT_NAME for a screen reader, SAVE, CANCEL, both with "_TIP", CLOSE.
    struct Plan {
        const char* window;
        const char* close;
        const char* fault;
        const char* save;
        const char* cancel;
        const char* drop;  ///< key of the question before typed texts are lost
        int width;         ///< pixels
        bool titlesAbove;  ///< of their fields, else beside them
        std::vector<Field> fields;
        QString (*word)(const char* key);
    };

    /// Whether something was typed that is not saved.
    bool IsTouched() const { return Texts() != opened_; }
    /// Asks, where something was typed, whether it may go. True when nothing holds the window.
    bool MayGo();
    /// Texts in the language in force.
    virtual void ApplyTexts();
    void ApplySkin() override;

  protected:
    /// `closed` is called when the window has gone, saved or not. `below` stands between fields and fault;
    /// the form owns it.
    EntryForm(QWidget* parent, Plan plan, std::function<void()> closed, QWidget* below = nullptr);

    /// Fills the fields, in their order, for a new thing or one that is changed.
    void Fill(const std::vector<std::string>& texts, bool isNew);
    std::vector<std::string> Texts() const;
    QLineEdit& FieldAt(std::size_t field) const { return *rows_[field].field; }
    /// Tells what is wrong with a field and goes there.
    void Refuse(std::size_t field, const QString& fault);
    /// Tells why it was not saved; without a cause it was, and the window goes.
    void End(const QString& failure);
    /// Checks what was typed and saves it.
    virtual void Commit() = 0;
    /// A letter was typed.
    virtual void Typed() {}
    void CloseAsked() override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct Row {
        QLabel* title = nullptr;
        QLineEdit* field = nullptr;
    };
    void AddFields(QWidget* below);
    void AddButtons();
    void Tell(const QString& fault);

    Plan plan_;
    std::function<void()> closed_;
    bool isNew_ = true;
    std::vector<std::string> opened_;  ///< as they were filled
    std::vector<Row> rows_;
    QLabel* fault_;
    QPushButton* save_;
    QPushButton* cancel_;
    QToolButton* close_;
};

}  // namespace Tarvik::Skin
