// SPDX-License-Identifier: MIT
#include "host/client/places/OwnPortForm.h"

#include <QLineEdit>

#include "host/client/places/Words.h"

namespace Tarvik::Client {

namespace {

/// The form's fields in their order.
enum PortField : std::size_t { Name, Place };

Skin::EntryForm::Plan PlanOfForm() {
    constexpr int kWidth = 360;  // pixels
    return {"ownPortForm",
            "ownPortFormClose",
            "ownPortFault",
            "ownPortSave",
            "ownPortCancel",
            "DROP_PORT",
            kWidth,
            true,
            {{"NAME", "ownPortName"}, {"PLACE", "ownPortPlace"}},
            &PortWord};
}

bool IsAboutPlace(PortFault fault) {
    return fault == PortFault::PlaceMissing || fault == PortFault::PlaceUnread;
}

}  // namespace

OwnPortForm::OwnPortForm(QWidget* mainWindow, const Owner& owner)
    : OwnPortForm(mainWindow, owner, new QLabel) {}

OwnPortForm::OwnPortForm(QWidget* mainWindow, const Owner& owner, QLabel* understood)
    : EntryForm(mainWindow, PlanOfForm(), owner.closed, understood), owner_(owner), understood_(understood) {
    understood_->setObjectName("ownPortUnderstood");
    understood_->setProperty("secondary", true);
    understood_->setWordWrap(true);
    EntryForm::ApplySkin();
    OwnPortForm::ApplyTexts();
}

void OwnPortForm::ApplyTexts() {
    EntryForm::ApplyTexts();
    FieldAt(PortField::Place).setPlaceholderText(PortWord("PLACE_HINT"));
    understood_->setAccessibleName(PortWord("UNDERSTOOD_NAME"));
    ShowUnderstood();
}

void OwnPortForm::Open(const Ports::Place& port) {
    port_ = port;
    const OwnPortDraft texts = OwnPortDraft::Of(port);
    Fill({texts.name, texts.position}, port.id.empty());
}

OwnPortDraft OwnPortForm::Draft() const {
    return {FieldAt(PortField::Name).text().toStdString(), FieldAt(PortField::Place).text().toStdString()};
}

void OwnPortForm::ShowUnderstood() {
    const QString place = QString::fromStdString(Draft().Understood());
    understood_->setText(place.isEmpty() ? PortWord("PLACE_FORMS") : PortWord("UNDERSTOOD").arg(place));
}

void OwnPortForm::Commit() {
    const OwnPortDraft typed = Draft();
    if (const auto fault = owner_.check(typed, port_.id)) {
        return Refuse(IsAboutPlace(*fault) ? PortField::Place : PortField::Name, WordOf(*fault));
    }
    End(owner_.save(typed.Kept(port_)));
}

}  // namespace Tarvik::Client
