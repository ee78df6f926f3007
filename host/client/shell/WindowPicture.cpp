// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QImageWriter>
#include <QMainWindow>
#include <QPainter>
#include <QTimer>

#include "host/client/shell/Runs.h"

namespace Tarvik::Client {

namespace {

/// Longer than any animation of the client.
constexpr int kSettleMs = 400;

/// Nobody points at a picture: no tool looks as if, and the status line asks for no pointer.
void ForgetPointer(const QMainWindow& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        widget->setAttribute(Qt::WA_UnderMouse, false);
    }
    if (auto* position = window.findChild<QWidget*>("cursorPosition")) {
        position->hide();
    }
}

}  // namespace

void SettleWindows() {
    QEventLoop loop;
    QTimer::singleShot(kSettleMs, &loop, &QEventLoop::quit);
    loop.exec();
    QApplication::processEvents();
}

QPixmap PictureOf(QMainWindow& window) {
    ForgetPointer(window);
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QWidget* panel : QApplication::topLevelWidgets()) {
        const bool floats = panel != &window && panel->isVisible() && panel->isWindow();
        if (floats) {
            painter.drawPixmap(panel->pos() - window.pos(), panel->grab());
        }
    }
    return picture;
}

bool CanWritePicture(const QString& file, std::string& error) {
    const QFileInfo folder(QFileInfo(file).absolutePath());
    if (folder.isDir() && folder.isWritable()) {
        const QByteArray format = QFileInfo(file).suffix().toLower().toLatin1();
        if (QImageWriter::supportedImageFormats().contains(format)) {
            return true;
        }
        error = "A picture cannot be written as \"" + file.toStdString() +
                "\": let the name end with .png or .jpg.";
        return false;
    }
    error = "The picture's folder " + folder.filePath().toStdString() + " is missing or cannot be written.";
    return false;
}

bool SavePicture(QMainWindow& window, const QString& file, std::string& error) {
    if (PictureOf(window).save(file)) {
        return true;
    }
    error =
        "The picture " + file.toStdString() + " cannot be written: free some space or choose another folder.";
    return false;
}

}  // namespace Tarvik::Client
