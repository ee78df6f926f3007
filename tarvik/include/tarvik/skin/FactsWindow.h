// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <vector>

#include <tarvik/skin/ToolWindow.h>

namespace Tarvik::Skin {

/// One line of a card.
struct Fact {
    QString name;   ///< object name of its value
    QString title;  ///< in the person's language
    QString value;  ///< as it stands, no markup; a fact without one has no line
};

/// A card: a floating window that tells facts, a line each, and closes.
class TARVIK_API FactsWindow : public ToolWindow {
  public:
    /// As ToolWindow; `closeName` is the object name of the button that closes, `closeText` what it is
    /// called.
    FactsWindow(QWidget* parent, const QString& name, const char* closeName, const QString& closeText);

    /// Shows the facts in place of those before, beside a point of the screen and within it.
    void ShowFacts(const QString& caption, const std::vector<Fact>& facts, const QPoint& cursor);

  protected:
    void CloseAsked() override { hide(); }

  private:
    void PlaceAt(const QPoint& cursor);

    QWidget* rows_ = nullptr;
};

}  // namespace Tarvik::Skin
