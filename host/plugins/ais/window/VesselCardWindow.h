// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include <tarvik/skin/ToolWindow.h>

#include "host/plugins/ais/services/CardFacts.h"

class QFormLayout;

namespace Tarvik::Ais {

/// The card of one vessel: name, number, place, course, speed, time, ports.
class VesselCardWindow : public Skin::ToolWindow {
  public:
    explicit VesselCardWindow(QWidget* mainWindow);

    /// Shows the facts beside the cursor, within the screen. What is not known has no row.
    void Show(const CardFacts& facts);

  protected:
    void CloseAsked() override { hide(); }

  private:
    /// One row of the card; its object name is "ais" and the key.
    void Row(const char* key, const QString& text);
    void Fill(const CardFacts& facts);
    void PlaceAt(const QPoint& cursor);

    QWidget* rows_ = nullptr;
    QFormLayout* form_ = nullptr;
};

}  // namespace Tarvik::Ais
