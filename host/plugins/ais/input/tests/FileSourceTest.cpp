// SPDX-License-Identifier: MIT
#include <algorithm>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/ais/core/SentenceWriter.h"
#include "host/plugins/ais/input/FileSource.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Ais {

namespace {

class FileSourceTest : public testing::Test {
  protected:
    static std::string Tagged(std::int64_t time) {
        return "\\" + Checked("c:" + std::to_string(time)).substr(1) + "\\" + Checked("AIVDM,1,1,,A,1,0") +
               "\n";
    }
    void Write(const std::string& text) const { std::ofstream(file, std::ios::binary) << text; }
    SourceTaker Taker() {
        return {[this](std::string_view bytes) { heard += bytes; }, [] {}};
    }
    long Lines() const { return std::count(heard.begin(), heard.end(), '\n'); }

    TestSupport::DataFolder folder;
    std::string file = (folder.Path() / "log.nmea").string();
    std::string heard;
};

TEST_F(FileSourceTest, PaceFollowsTheTagBlocks) {
    Write(Tagged(1000) + "untagged\n" + Tagged(1010) + Tagged(1020));
    FileSource source(file, 2, Taker());
    source.Tick(50'000);
    EXPECT_EQ(Lines(), 2);
    source.Tick(54'999);
    EXPECT_EQ(Lines(), 2);
    source.Tick(55'000);
    EXPECT_EQ(Lines(), 3);
    EXPECT_TRUE(source.State().open);
    source.Tick(60'000);
    EXPECT_EQ(Lines(), 4);
    EXPECT_TRUE(source.State().ended);
}

TEST_F(FileSourceTest, PaceZeroGoesAtOnceInBoundedPieces) {
    std::string log;
    for (int i = 0; i < FileSource::kMostAtOnce + 5; ++i) {
        log += "line\n";
    }
    Write(log);
    FileSource source(file, 0, Taker());
    source.Tick(0);
    EXPECT_EQ(Lines(), FileSource::kMostAtOnce);
    source.Tick(0);
    EXPECT_EQ(heard, log);
}

TEST_F(FileSourceTest, LogWithoutTimesGoesSteadily) {
    std::string log;
    for (int i = 0; i < 500; ++i) {
        log += "line\n";
    }
    Write(log);
    FileSource source(file, 1, Taker());
    source.Tick(0);
    EXPECT_EQ(Lines(), 1);
    source.Tick(1000);
    EXPECT_EQ(Lines(), 51);
}

TEST_F(FileSourceTest, LastLineNeedsNoEnd) {
    Write("one\ntwo");
    FileSource source(file, 0, Taker());
    source.Tick(0);
    EXPECT_EQ(heard, "one\ntwo\n");
}

TEST_F(FileSourceTest, LineWithoutAnEndDoesNotFillMemory) {
    Write(std::string(2'000'000, 'x') + "\nshort\n");
    FileSource source(file, 0, Taker());
    source.Tick(0);
    EXPECT_LT(heard.size(), 2000U);
    EXPECT_TRUE(heard.ends_with("\nshort\n"));
}

TEST_F(FileSourceTest, MissingFileIsAnError) {
    FileSource source((folder.Path() / "none").string(), 1, Taker());
    source.Tick(0);
    EXPECT_FALSE(source.State().open);
    EXPECT_FALSE(source.State().error.empty());
}

}  // namespace
}  // namespace Tarvik::Ais
