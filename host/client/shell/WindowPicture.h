// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>
#include <string>

class QMainWindow;

namespace Tarvik::Client {

/// Lets the window system work until everything is drawn and running moves of the chart have come to rest.
void SettleWindows();
/// The main window with the floating panels that stand over it.
QPixmap PictureOf(QMainWindow& window);
/// Whether a picture can be written to `file`: its folder is there and may be written. `error` says what to
/// do.
bool CanWritePicture(const QString& file, std::string& error);
/// Writes PictureOf in the format of the file's ending. False with one line.
bool SavePicture(QMainWindow& window, const QString& file, std::string& error);

}  // namespace Tarvik::Client
