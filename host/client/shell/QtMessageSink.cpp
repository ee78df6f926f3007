// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <tarvik/skin/ToolWindow.h>

#include "host/client/shell/ClientBox.h"
#include "host/client/shell/QtServices.h"

namespace Tarvik::Client {

using Interface::SysMsgHandleRes;

Interface::SysMsgHandleRes QtMessageSink::SyncSendMsg(int /*level*/, const std::u16string& text, int flags,
                                                      void* owner, const std::u16string& title) {
    QWidget* parent = owner ? static_cast<QWidget*>(owner) : mainWindow_;
    // The owner may be destroyed while the box is up, and takes the box with it.
    const QPointer<QMessageBox> box(new QMessageBox(parent));
    const auto word = [this](const char* key) { return QString::fromStdString(texts_.Text("Client", key)); };
    box->setObjectName("message");
    box->setTextFormat(Qt::PlainText);
    const QString told = QString::fromStdU16String(text);
    box->setText(told.section('\n', 0, 0));
    // What is below the text tells what it is about, and stands apart from it.
    box->setInformativeText(told.section('\n', 1));
    box->setWindowTitle(title.empty() ? word("TITLE") : QString::fromStdU16String(title));
    const bool question = flags == 4;
    DressBox(*box, question ? BoxKind::Question : BoxKind::Notice);
    const QuestionButtons own = texts_.ButtonsOf(told.toStdString());
    const auto button = [&](const std::string& words, const char* key) {
        return words.empty() ? word(key) : QString::fromStdString(words);
    };
    QPushButton* agree = box->addButton(button(own.yes, question ? "YES" : "OK"), QMessageBox::AcceptRole);
    agree->setObjectName(question ? "messageYes" : "messageOk");
    QPushButton* refuse = nullptr;
    if (flags != 0) {
        refuse = box->addButton(button(own.no, question ? "NO" : "CANCEL"), QMessageBox::RejectRole);
        refuse->setObjectName(question ? "messageNo" : "messageCancel");
        box->setEscapeButton(own.yesIsCareful ? agree : refuse);
    }
    // Whoever types on while a box comes up must not lose anything by that.
    box->setDefaultButton(refuse && !own.yesIsCareful ? refuse : agree);
    Skin::RunDialog(*box);
    const bool gone = box.isNull();
    const bool agreed = !gone && box->clickedButton() == agree;
    delete box;
    if (flags == 0 || gone) {
        return SysMsgHandleRes::None;
    }
    if (agreed) {
        return question ? SysMsgHandleRes::Yes : SysMsgHandleRes::Ok;
    }
    return question ? SysMsgHandleRes::No : SysMsgHandleRes::Cancel;
}

}  // namespace Tarvik::Client
