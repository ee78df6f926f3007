// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>
#include <string>

#include "host/client/services/CommandLine.h"

class QMainWindow;

namespace Tarvik::Client {

/// Runs `plan`: without a window system, or with an invisible one when a picture is asked for. The exit code.
int RunPlan(int argc, char** argv, const CommandLine& line);
/// Opens the client's window and runs it, or takes its picture when the command line asks for one. The exit
/// code.
int RunWindow(int argc, char** argv, const CommandLine& line);

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
