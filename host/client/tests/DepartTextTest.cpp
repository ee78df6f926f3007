// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/plan/PlanArguments.h"

namespace Tarvik::Client {

namespace {

constexpr const char* kForm = "%Y-%m-%d %H:%M:%S";

std::string Read(const char* text, const char* zone = "Europe/Amsterdam") {
    const auto read = ReadDepart(text);
    return read ? read->In(zone).fmt(kForm) : "none";
}

TEST(ReadDepart, TakesADateAloneAsItsMidnight) {
    EXPECT_EQ(Read("2026-12-01"), "2026-12-01 00:00:00");
    EXPECT_EQ(Read("20261201"), "2026-12-01 00:00:00");
}

TEST(ReadDepart, TakesTheFormsOfIso) {
    for (const char* text : {"2026-12-01 08:05", "2026-12-01T08:05", "2026-12-01t08:05:00", "20261201T0805",
                             "20261201T080500", "2026-12-01 0805"}) {
        EXPECT_EQ(Read(text), "2026-12-01 08:05:00") << text;
    }
    EXPECT_EQ(Read("2028-02-29T23:59:58"), "2028-02-29 23:59:58");
}

TEST(ReadDepart, ATimeWithAnOffsetIsTheSameMomentInEveryZone) {
    EXPECT_EQ(Read("2026-12-01T08:00Z", "China Standard Time"), "2026-12-01 16:00:00");
    EXPECT_EQ(Read("2026-12-01T08:00+08:00", "China Standard Time"), "2026-12-01 08:00:00");
    EXPECT_EQ(Read("2026-12-01T08:00+08", "UTC"), "2026-12-01 00:00:00");
    EXPECT_EQ(Read("2026-12-01T00:30+05:30", "UTC"), "2026-11-30 19:00:00");
    EXPECT_EQ(Read("20261201T0800-0330", "UTC"), "2026-12-01 11:30:00");
    EXPECT_EQ(Read("2026-12-01T08:00"), Read("2026-12-01T08:00", "UTC")) << "without one it is the zone's";
}

TEST(ReadDepart, RefusesOtherFormsAndWhatDoesNotExist) {
    for (const char* text :
         {"", "tomorrow", "2026-12", "2026-1-1", "2026-1201", "2026-12-01T", "2026-12-01T8", "2026-12-01Z",
          "2026-02-30", "2026-12-01 24:01", "2026-12-01 08:60", "2026-12-01T08:00+15:00",
          "2026-12-01T08:00+01:60", "2026-12-01T08:00+1", "2026-12-01 08:00 ", "12/01/2026"}) {
        EXPECT_EQ(Read(text), "none") << text;
    }
}

}  // namespace

}  // namespace Tarvik::Client
