// SPDX-License-Identifier: MIT
#include "host/server/transfer/tests/SampleOwner.h"

#include <limits>

#include <gtest/gtest.h>

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server {

namespace {

constexpr const char* kOddName = "\"Quoted\" \\ ＂全角＂ \xF0\x9F\x9A\xA2 line\nbreak\x01";

void Expect(const Status& status) {
    EXPECT_TRUE(status.Succeeded()) << (status ? "" : status.GetFault().detail);
}

VoyageRecord Sailing() {
    VoyageRecord voyage;
    voyage.name = kOddName;
    voyage.vessel.id = "v7";
    voyage.routeShown = true;
    return voyage;
}

void FillSchedule(Storage& storage, const std::string& user, const std::string& vi) {
    ScheduleStorage& schedule = storage.Schedule();
    Expect(schedule.ReplacePortCalls(user, vi,
                                     {{0, "40001", "Ulsan", "L", 18.52, 0.05, 0.1},
                                      {7, "", "5 Sea \"x\"", "", 1.0 / 3.0, 1, 1e6},
                                      {8, "40208", "上海", " ", 0, 0, 5e-324}}));
    const std::string book = schedule.CreateBook(user, vi, "2011-10-02 00:00:00").Value();
    Expect(schedule.ReplaceBookRows(user, book, {},
                                    {{0, "", 120, -30.123456789012345, "GC", 5, 25.928, 5},
                                     {1, kOddName, -360, 90, "", 0, 1e9, 0},
                                     {999999, "RL", 0.1 + 0.2, 0, "RL", 360, 0, 9}}));
    for (const char* time : {"2026-03-02 00:00:00", "2010-01-01 00:00:00"}) {
        Expect(schedule.AddAisTime(user, vi, time));
    }
}

void Remark(Storage& storage, const std::string& user, const RemarkObject& object, std::int32_t seq) {
    Expect(storage.Remarks().AddRemark(user, object, {seq, kOddName, "body\n2", 1772323200, 1772326800}));
}

void FillRemarks(Storage& storage, const std::string& user, const std::string& ci, const std::string& vi) {
    Remark(storage, user, {kCategoryRemark, ci}, 1);
    Remark(storage, user, {kVoyageRemark, vi}, 3);
    Remark(storage, user, {kVoyageRemark, vi}, std::numeric_limits<std::int32_t>::max());
    Remark(storage, user, {kPortCallRemark, vi + "5 Sea \"x\""}, 1);
    Remark(storage, user, {kPortCallRemark, vi + "a port that is called at no more"}, 2);
}

}  // namespace

void MakeSample(Storage& storage, const std::string& user) {
    CatalogStorage& catalog = storage.Catalog();
    const std::string used = catalog.CreateCategory(user, "2026").Value();
    const std::string binned = catalog.CreateCategory(user, kOddName).Value();
    const std::string destroyed = catalog.CreateCategory(user, "gone").Value();
    const std::string full = catalog.CreateVoyage(user, binned, Sailing()).Value();
    Expect(catalog.SetFigures(user, full, {1, 2, 3, 4, 5, 6, std::numeric_limits<std::int32_t>::max()}));
    Expect(catalog.ChangeVessel(user, full, {"", kOddName, 477123456}));
    Expect(catalog.TraceAis(user, full, true));
    FillSchedule(storage, user, full);
    FillRemarks(storage, user, binned, full);
    const std::string plain = catalog.CreateVoyage(user, used, Sailing()).Value();
    EXPECT_TRUE(storage.Schedule().CreateBook(user, plain, "2026-03-01 08:00:00").Succeeded());
    const std::string resting = catalog.CreateVoyage(user, used, Sailing()).Value();
    const std::string lost = catalog.CreateVoyage(user, used, Sailing()).Value();
    FillSchedule(storage, user, lost);
    Remark(storage, user, {kVoyageRemark, lost}, 1);
    FillSchedule(storage, user, catalog.CreateVoyage(user, destroyed, Sailing()).Value());
    for (const std::string& voyage : {resting, lost}) {
        Expect(catalog.MoveVoyage(user, voyage, DeletionState::InBin));
    }
    Expect(catalog.MoveVoyage(user, lost, DeletionState::Destroyed));
    for (const std::string& category : {binned, destroyed}) {
        Expect(catalog.MoveCategory(user, category, DeletionState::InBin));
    }
    Expect(catalog.MoveCategory(user, destroyed, DeletionState::Destroyed));
}

void MakeSmall(Storage& storage, const std::string& user) {
    VoyageRecord voyage;
    voyage.name = "V";
    const std::string category = storage.Catalog().CreateCategory(user, "A").Value();
    EXPECT_TRUE(storage.Catalog().CreateVoyage(user, category, voyage).Succeeded());
}

}  // namespace Tarvik::Server
