// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/fleet/core/VesselDraft.h"

namespace Tarvik::Fleet {

namespace {

VesselDraft Good() {
    return {"Far Star", "232000001", "9074729", "GBXY", "Bulk carrier", "189.9", "14,5"};
}

TEST(VesselDraft, IsReadAsTyped) {
    EXPECT_FALSE(Good().Check());
    const Interface::FleetVessel expected{"",     "Far Star",     232000001, 9074729,
                                          "GBXY", "Bulk carrier", 189.9,     14.5};
    EXPECT_EQ(Good().Vessel(), expected);
    EXPECT_EQ(VesselDraft::Of(expected).speed, "14.5");
    EXPECT_EQ(VesselDraft::Of(expected).mmsi, "232000001");
}

TEST(VesselDraft, OnlyTheNameMustBeThere) {
    VesselDraft draft;
    draft.name = "  Far Star ";
    EXPECT_FALSE(draft.Check());
    EXPECT_EQ(draft.Vessel().name, "Far Star");
    EXPECT_EQ(draft.Vessel().mmsi, 0);
    EXPECT_EQ(VesselDraft::Of(draft.Vessel()).mmsi, "");
    draft.name = " ";
    EXPECT_EQ(draft.Check(), Fault::NameMissing);
    draft.name = std::string(65, 'x');
    EXPECT_EQ(draft.Check(), Fault::NameLong);
}

TEST(VesselDraft, AnMmsiHasNineDigitsAndACountry) {
    VesselDraft draft = Good();
    for (const char* typed : {"23200000", "2320000011", "23200000x", "-32000001"}) {
        draft.mmsi = typed;
        EXPECT_EQ(draft.Check(), Fault::MmsiDigits) << typed;
    }
    for (const char* typed : {"002320001", "970123456", "200999999", "776000000"}) {
        draft.mmsi = typed;
        EXPECT_EQ(draft.Check(), Fault::MmsiCountry) << typed;
    }
}

TEST(VesselDraft, AnImoNumberHasItsCheckDigit) {
    VesselDraft draft = Good();
    for (const char* typed : {"IMO 9074729", "imo9074729", " 9074729 ", ""}) {
        draft.imo = typed;
        EXPECT_FALSE(draft.Check()) << typed;
    }
    draft.imo = "9074728";
    EXPECT_EQ(draft.Check(), Fault::ImoCheck);
    for (const char* typed : {"907472", "90747290", "IMO"}) {
        draft.imo = typed;
        EXPECT_EQ(draft.Check(), Fault::ImoDigits) << typed;
    }
}

TEST(VesselDraft, LengthAndSpeedHaveRanges) {
    VesselDraft draft = Good();
    for (const char* typed : {"-1", "501", "x", "1e2", "nan"}) {
        draft.length = typed;
        EXPECT_EQ(draft.Check(), Fault::Length) << typed;
    }
    draft.length = "500";
    draft.speed = "60.1";
    EXPECT_EQ(draft.Check(), Fault::Speed);
    draft.speed = "60";
    EXPECT_FALSE(draft.Check());
    draft.length = "189.94";
    draft.speed = "14.523";
    EXPECT_EQ(draft.Vessel().length, 189.9);
    EXPECT_EQ(draft.Vessel().serviceSpeed, 14.52);
    draft.callSign = std::string(13, 'A');
    EXPECT_EQ(draft.Check(), Fault::CallSignLong);
    draft.callSign = "";
    draft.type = std::string(65, 'A');
    EXPECT_EQ(draft.Check(), Fault::TypeLong);
}

TEST(VesselDraft, WhatNoRequestCanHoldBecomesFullwidth) {
    VesselDraft draft = Good();
    draft.name = R"(Queen "Anne's" & \ Co)";
    EXPECT_EQ(draft.Vessel().name, "Queen ＂Anne＇s＂ ＆ ＼ Co");
}

}  // namespace
}  // namespace Tarvik::Fleet
