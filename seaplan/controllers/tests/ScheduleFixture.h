// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "testsupport/DataFolder.h"
#include "testsupport/ManualClock.h"
#include "testsupport/PortDictionary.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

/// Ports A, B and C on the equator at 0, 1 and 3 degrees, as the server routes and stores them.
inline constexpr const char* kRouteAb =
    R"([{point_cd:"40001",distance:0,routes:[],rp_groups:[],rp_id_str:"",lock_rp_id_str:""},)"
    R"({point_cd:"40002",distance:1.5,routes:[{route:"1",from_cd:"40001",end_cd:"40002",)"
    R"(pointset:"0.000,0.000|0.500,0.000|1.000,0.000",distance:1.5}],rp_groups:[],rp_id_str:"",lock_rp_id_str:""}])";
inline constexpr const char* kPortCallsAb =
    R"([{lon:"0",ppi:"40001",ppn:"A",pp:"L",psp:"0",pw:"0",apt:"6"},)"
    R"({lon:"1",ppi:"40002",ppn:"B",pp:"D",psp:"18.52",pw:"0",apt:"0"}])";
inline constexpr const char* kBookAb =
    R"([{pbi:"5",eta:"2024-03-01 00:00:00",pb:[{lon:0,psn:"A",xc:0.0,yc:0.0,psp:"0.0",pst:"5"},)"
    R"({lon:1,psn:"",xc:0.5,yc:0.0,psp:"18.52",pst:"0"},{lon:2,psn:"B",xc:1.0,yc:0.0,psp:"18.52",pst:"5"}]}])";

/// The controllers over the recording host, with an application folder of their own. Zone and clock are UTC+8
/// and UTC.
class ScheduleFixture : public testing::Test {
  protected:
    ScheduleFixture() {
        catalog.SetVoyController(&voyages);
        store.categories["1"].cn = "Cat";
        store.categoryStates["1"] = InUse;
        store.categoryVoyages["1"]["9"] = InUse;
        VoyInfo& voyage = store.voyages["9"];
        voyage.vi = "9";
        voyage.vn = "V";
    }

    VoyInfo& Voyage() { return store.voyages.at("9"); }
    void ReplySchedule() {
        host.Reply(10, kPortCallsAb);
        host.Reply(7, kBookAb);
    }
    /// Two typed rows, A and B.
    static PortCallRows TypedRows() {
        PortCallRows rows(2);
        rows[0].ppi = "40001";
        rows[0].ppn = "A";
        rows[0].pp = "L";
        rows[0].apt = 6;
        rows[0].eta = Util::_datetime_t(0, 0, 8, 1, 3, 2024);
        rows[1].ppi = "40002";
        rows[1].ppn = "B";
        return rows;
    }

    TestSupport::DataFolder folder;
    TestSupport::ManualClock clock;
    TestSupport::RecordingHost host;
    TestSupport::PortDictionary dictionary{
        TestSupport::PortDictionary::Ports{{"A", "40001"}, {"B", "40002"}, {"C", "40003"}}};
    VoyageStore store;
    PortDirectory directory;
    VoyCatalogModule catalogModule{&store};
    VoyCatalogController catalog{&catalogModule, &store};
    VoyPortCallModule module{&store, &directory};
    VoyController voyages{&module, &catalog, &store};
    PortCallRows rows;
};

}  // namespace Tarvik::Seaplan
