// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "host/client/services/LanguageFiles.h"

class QMessageBox;
class QWidget;

namespace Tarvik::Client {

/// What a message box is for, which its picture shows.
enum class BoxKind { Notice, Question, Fault };

/// Gives a box the client's look in the theme in force, whatever the window is that owns it.
void DressBox(QMessageBox& box, BoxKind kind);
/// A box that tells a fault, with one button in the language in force; not shown yet.
QMessageBox* MakeFaultBox(QWidget* parent, const LanguageFiles& texts, const QString& text);
/// Shows one and waits until it is closed.
void TellFault(QWidget* parent, const LanguageFiles& texts, const QString& text);

}  // namespace Tarvik::Client
