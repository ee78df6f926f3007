// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/window/VesselForm.h"

#include <utility>

#include "host/plugins/fleet/window/Words.h"

namespace Tarvik::Fleet {

namespace {

struct VesselField {
    Skin::EntryForm::Field look;
    std::string VesselDraft::*text;
};

constexpr VesselField kFields[] = {
    {{"NAME", "fleetName"}, &VesselDraft::name},    {{"MMSI", "fleetMmsi"}, &VesselDraft::mmsi},
    {{"IMO", "fleetImo"}, &VesselDraft::imo},       {{"CALLSIGN", "fleetCallSign"}, &VesselDraft::callSign},
    {{"TYPE", "fleetType"}, &VesselDraft::type},    {{"LENGTH", "fleetLength"}, &VesselDraft::length},
    {{"SPEED", "fleetSpeed"}, &VesselDraft::speed},
};

Skin::EntryForm::Plan PlanOfForm() {
    constexpr int kWidth = 340;  // pixels
    Skin::EntryForm::Plan plan{"fleetVesselForm",
                               "fleetFormClose",
                               "fleetFault",
                               "fleetSave",
                               "fleetCancel",
                               "DROP",
                               kWidth,
                               false,
                               {},
                               &Word};
    for (const VesselField& field : kFields) {
        plan.fields.push_back(field.look);
    }
    return plan;
}

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
    : EntryForm(mainWindow, PlanOfForm(), std::move(closed)), save_(std::move(save)) {
    EntryForm::ApplySkin();
    EntryForm::ApplyTexts();
}

void VesselForm::Open(const Interface::FleetVessel& vessel) {
    id_ = vessel.id;
    const VesselDraft draft = VesselDraft::Of(vessel);
    std::vector<std::string> texts;
    for (const VesselField& field : kFields) {
        texts.push_back(draft.*field.text);
    }
    Fill(texts, id_.empty());
}

void VesselForm::Commit() {
    const std::vector<std::string> texts = Texts();
    VesselDraft typed;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        typed.*kFields[i].text = texts[i];
    }
    if (const auto fault = typed.Check()) {
        return Refuse(FieldOf(*fault), Word(KeyOf(*fault)));
    }
    Interface::FleetVessel vessel = typed.Vessel();
    vessel.id = id_;
    End(save_(vessel));
}

}  // namespace Tarvik::Fleet
