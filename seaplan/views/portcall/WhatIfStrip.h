// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <array>

#include "seaplan/panels/portcall/WhatIfView.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Tarvik::Seaplan {

class WhatIf;

/// The strip of questions below the port call table: a port, the arrival that is wanted there, and each
/// answer with the button that takes it. It is hidden until it is opened.
class WhatIfStrip final : public QWidget, public WhatIfView {
  public:
    explicit WhatIfStrip(QWidget* parent);
    void Attach(WhatIf& panel);
    void ApplyTexts();

    void ShowWhatIf(const WhatIfState& state) override;

  private:
    struct Line {
        QLabel* text = nullptr;
        QPushButton* take = nullptr;
    };
    Line MakeLine(WhatIfLine line);
    void ShowPorts(const WhatIfState& state);

    WhatIf* panel_ = nullptr;
    QLabel* title_;
    QComboBox* ports_;
    QLabel* at_;
    QLineEdit* arrival_;
    QLabel* note_;
    std::array<Line, kWhatIfLines> lines_{};
};

}  // namespace Tarvik::Seaplan
