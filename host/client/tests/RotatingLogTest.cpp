// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/Clock.h>

#include "host/client/services/RotatingLog.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

class FixedClock : public Util::Clock {
  public:
    FixedClock() { Util::Clock::Set(this); }
    ~FixedClock() override { Util::Clock::Set(nullptr); }
    std::int64_t NowUtcCsecs() const override { return 0; }
};

TEST(RotatingLog, StampsLinesInUtc) {
    const FixedClock clock;
    TestSupport::TemporaryFolder folder;
    RotatingLog(folder.File("l"), 1000, false).Write("hello");
    EXPECT_EQ(folder.Read("l"), "1970-01-01 00:00:00Z hello\n");
}

TEST(RotatingLog, RenamesAFullFileAndGoesOn) {
    const FixedClock clock;
    TestSupport::TemporaryFolder folder;
    RotatingLog log(folder.File("l"), 60, false);
    log.Write("one");
    log.Write("two");
    EXPECT_FALSE(std::filesystem::exists(folder.File("l.1")));
    log.Write("three");
    EXPECT_EQ(folder.Read("l"), "1970-01-01 00:00:00Z three\n");
    EXPECT_EQ(folder.Read("l.1"), "1970-01-01 00:00:00Z one\n1970-01-01 00:00:00Z two\n");
}

TEST(RotatingLog, RepeatsLinesOnStandardErrorWhenVerbose) {
    const FixedClock clock;
    TestSupport::TemporaryFolder folder;
    testing::internal::CaptureStderr();
    RotatingLog(folder.File("l"), 1000, true).Write("loud");
    RotatingLog(folder.File("l"), 1000, false).Write("quiet");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "1970-01-01 00:00:00Z loud\n");
}

TEST(RotatingLog, IsSilentWhereItCannotWrite) {
    TestSupport::TemporaryFolder folder;
    RotatingLog(folder.File("no/such/folder/l"), 1000, false).Write("lost");
    EXPECT_FALSE(std::filesystem::exists(folder.File("no")));
}

}  // namespace
}  // namespace Tarvik::Client
