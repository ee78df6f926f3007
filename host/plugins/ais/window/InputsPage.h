// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "host/plugins/ais/services/Settings.h"

class QCheckBox;
class QPlainTextEdit;

namespace Tarvik::Ais {

/// The page of the preferences: inputs, one a line, and whether ships are shown.
class InputsPage : public QWidget {
  public:
    InputsPage(QWidget* parent, const Settings& settings);

    /// What stands on the page; empty lines are left out.
    Settings Chosen() const;
    /// Empty when every line is an input; else which is none, in the person's language.
    QString Fault() const;

  private:
    QPlainTextEdit* inputs_;
    QCheckBox* ships_;
};

}  // namespace Tarvik::Ais
