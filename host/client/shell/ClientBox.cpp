// SPDX-License-Identifier: MIT
#include "host/client/shell/ClientBox.h"

#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/ToolWindow.h>

#include "host/client/shell/Theme.h"

namespace Tarvik::Client {

namespace {

constexpr int kPicture = 32;  ///< edge of a box's picture, in pixels

QPixmap PictureOf(BoxKind kind, qreal scale) {
    const char* const drawing = kind == BoxKind::Question ? "question"
                                : kind == BoxKind::Fault  ? "alert"
                                                          : "notice";
    QPixmap picture(QSize(kPicture, kPicture) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    Skin::PaintIcon(painter, QRect(0, 0, kPicture, kPicture), drawing,
                    Skin::Colour(kind == BoxKind::Fault ? Skin::Role::Warning : Skin::Role::Accent));
    return picture;
}

}  // namespace

void DressBox(QMessageBox& box, BoxKind kind) {
    // The sheet of a panel that owns the box would reach its buttons before the application's.
    box.setStyleSheet(ClientStyleSheet());
    box.setIconPixmap(PictureOf(kind, box.devicePixelRatioF()));
}

QMessageBox* MakeFaultBox(QWidget* parent, const LanguageFiles& texts, const QString& text) {
    const auto word = [&texts](const char* key) { return QString::fromStdString(texts.Text("Client", key)); };
    auto* box = new QMessageBox(parent);
    box->setWindowTitle(word("TITLE"));
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->addButton(word("OK"), QMessageBox::AcceptRole)->setObjectName("messageOk");
    DressBox(*box, BoxKind::Fault);
    return box;
}

void TellFault(QWidget* parent, const LanguageFiles& texts, const QString& text) {
    // A parent that goes takes the box with it.
    const QPointer<QMessageBox> box(MakeFaultBox(parent, texts, text));
    Skin::RunDialog(*box);
    delete box;
}

}  // namespace Tarvik::Client
