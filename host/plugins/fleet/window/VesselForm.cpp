// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/window/VesselForm.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "host/plugins/fleet/window/Words.h"

namespace Tarvik::Fleet {

namespace {

constexpr int kWidth = 340;  ///< pixels

struct Field {
    const char* key;   ///< of its title
    const char* name;  ///< object name
    std::string VesselDraft::*text;
};

constexpr Field kForm[] = {
    {"NAME", "fleetName", &VesselDraft::name},   {"MMSI", "fleetMmsi", &VesselDraft::mmsi},
    {"IMO", "fleetImo", &VesselDraft::imo},      {"CALLSIGN", "fleetCallSign", &VesselDraft::callSign},
    {"TYPE", "fleetType", &VesselDraft::type},   {"LENGTH", "fleetLength", &VesselDraft::length},
    {"SPEED", "fleetSpeed", &VesselDraft::speed}};

/// The field that a fault is about.
std::size_t FieldOf(Fault fault) {
    switch (fault) {
        case Fault::NameMissing:
        case Fault::NameLong:
            return 0;
        case Fault::MmsiDigits:
        case Fault::MmsiCountry:
            return 1;
        case Fault::ImoDigits:
        case Fault::ImoCheck:
            return 2;
        case Fault::CallSignLong:
            return 3;
        case Fault::TypeLong:
            return 4;
        case Fault::Length:
            return 5;
        case Fault::Speed:
            return 6;
    }
    return 0;
}

}  // namespace

VesselForm::VesselForm(QWidget* mainWindow, Save save, std::function<void()> closed)
    : ToolWindow(mainWindow, "fleetVesselForm"),
      save_(std::move(save)),
      closed_(std::move(closed)),
      fault_(new QLabel(this)),
      saveButton_(new QPushButton(this)),
      cancel_(new QPushButton(this)),
      close_(AddCaptionButton("fleetFormClose", "close")) {
    setFixedWidth(kWidth);
    auto* form = new QFormLayout;
    form->setContentsMargins(2 * Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid, 0);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i].title = new QLabel(this);
        rows_[i].field = new QLineEdit(this);
        rows_[i].field->setObjectName(kForm[i].name);
        rows_[i].field->setProperty("field", true);
        rows_[i].field->setFixedHeight(Skin::kControlHeight);
        rows_[i].title->setBuddy(rows_[i].field);
        connect(rows_[i].field, &QLineEdit::textEdited, this, [this] { Tell({}); });
        form->addRow(rows_[i].title, rows_[i].field);
    }
    Body()->addLayout(form);
    fault_->setObjectName("fleetFault");
    fault_->setWordWrap(true);
    fault_->setContentsMargins(2 * Skin::kGrid, 0, 2 * Skin::kGrid, 0);
    Body()->addWidget(fault_);
    saveButton_->setObjectName("fleetSave");
    saveButton_->setProperty("primary", true);
    cancel_->setObjectName("fleetCancel");
    connect(saveButton_, &QPushButton::clicked, this, &VesselForm::Commit);
    connect(cancel_, &QPushButton::clicked, this, &QWidget::hide);
    connect(close_, &QToolButton::clicked, this, &VesselForm::CloseAsked);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(2 * Skin::kGrid, Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid);
    row->addStretch(1);
    row->addWidget(cancel_);
    row->addWidget(saveButton_);
    Body()->addLayout(row);
    ApplySkin();
    ApplyTexts();
}

void VesselForm::ApplyTexts() {
    SetCaption(Word(id_.empty() ? "ADD_TITLE" : "CHANGE_TITLE"));
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i].title->setText(Word(kForm[i].key));
        rows_[i].field->setAccessibleName(Word(kForm[i].key));
    }
    saveButton_->setText(Word("SAVE"));
    saveButton_->setToolTip(Word("SAVE_TIP"));
    cancel_->setText(Word("CANCEL"));
    cancel_->setToolTip(Word("CANCEL_TIP"));
    Skin::Describe(close_, Word("CLOSE"));
}

void VesselForm::ApplySkin() {
    ToolWindow::ApplySkin();
    fault_->setStyleSheet(Skin::Coloured("color: @error;"));
}

void VesselForm::Open(const Interface::FleetVessel& vessel) {
    id_ = vessel.id;
    opened_ = VesselDraft::Of(vessel);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i].field->setText(QString::fromStdString(opened_.*kForm[i].text));
    }
    Tell({});
    ApplyTexts();
    adjustSize();
    rows_[0].field->setFocus();
}

VesselDraft VesselForm::Typed() const {
    VesselDraft draft;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        draft.*kForm[i].text = rows_[i].field->text().toStdString();
    }
    return draft;
}

bool VesselForm::IsTouched() const {
    const VesselDraft typed = Typed();
    for (const Field& field : kForm) {
        if (typed.*field.text != opened_.*field.text) {
            return true;
        }
    }
    return false;
}

void VesselForm::Commit() {
    const VesselDraft typed = Typed();
    if (const auto fault = typed.Check()) {
        QLineEdit* field = rows_[FieldOf(*fault)].field;
        Tell(Word(KeyOf(*fault)));
        field->setFocus();
        return field->selectAll();
    }
    Interface::FleetVessel vessel = typed.Vessel();
    vessel.id = id_;
    const QString failure = save_(vessel);
    Tell(failure);
    if (failure.isEmpty()) {
        hide();
    }
}

void VesselForm::Tell(const QString& fault) {
    fault_->setText(fault);
    fault_->setVisible(!fault.isEmpty());
    adjustSize();
}

/// Nothing that was typed is lost without a question.
void VesselForm::CloseAsked() {
    if (!IsTouched() || Agreed(Word("DROP"), this)) {
        hide();
    }
}

void VesselForm::hideEvent(QHideEvent* event) {
    ToolWindow::hideEvent(event);
    closed_();
}

void VesselForm::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Commit();
        case Qt::Key_Escape:
            return CloseAsked();
        default:
            ToolWindow::keyPressEvent(event);
    }
}

}  // namespace Tarvik::Fleet
