// SPDX-License-Identifier: MIT
// A receiver on a serial line, played by the other side of a pseudo terminal.
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <string>
#include <termios.h>
#include <unistd.h>

#include <boost/asio/io_context.hpp>
#include <gtest/gtest.h>

#include "host/plugins/ais/input/Retry.h"
#include "host/plugins/ais/input/Source.h"

namespace Tarvik::Ais {

namespace {

class SerialSourceTest : public testing::Test {
  protected:
    void SetUp() override { PlugIn(); }
    void TearDown() override {
        source_->Close();
        io_.restart();
        io_.poll();
        Unplug();
    }
    /// Opens a receiver and makes the source its line's, once there is one.
    void PlugIn() {
        receiver_ = posix_openpt(O_RDWR | O_NOCTTY);
        ASSERT_GE(receiver_, 0);
        ASSERT_EQ(grantpt(receiver_), 0);
        ASSERT_EQ(unlockpt(receiver_), 0);
        InputAddress address;
        address.kind = InputKind::Serial;
        address.place = ptsname(receiver_);
        address.baud = 4800;
        source_ = Source::Make(io_, address,
                               {[this](std::string_view bytes) { heard_ += bytes; }, [this] { ++began_; }});
        source_->Tick(kNow);
    }
    void Unplug() {
        if (receiver_ >= 0) {
            close(receiver_);
        }
        receiver_ = -1;
    }
    void Say(const std::string& text) const {
        ASSERT_EQ(write(receiver_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    /// Runs the context until the condition holds; a bound keeps a failing test from hanging.
    void Until(const std::function<bool()>& holds) {
        for (int i = 0; i < 30 && !holds(); ++i) {
            io_.restart();
            io_.run_one_for(std::chrono::seconds(1));
        }
        EXPECT_TRUE(holds());
    }

    static constexpr std::int64_t kNow = 1'000'000;
    boost::asio::io_context io_;
    int receiver_ = -1;
    std::shared_ptr<Source> source_;
    std::string heard_;
    int began_ = 0;
};

TEST_F(SerialSourceTest, SentencesAreHeardAtTheSpeedThatWasAskedFor) {
    ASSERT_TRUE(source_->State().open) << source_->State().error;
    EXPECT_EQ(began_, 1);
    termios line{};
    ASSERT_EQ(tcgetattr(receiver_, &line), 0);
    EXPECT_EQ(cfgetispeed(&line), static_cast<speed_t>(B4800));
    EXPECT_EQ(line.c_cflag & static_cast<tcflag_t>(CSIZE), static_cast<tcflag_t>(CS8));
    Say("!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C\r\n");
    Until([this] { return heard_.ends_with("5C\r\n"); });
    EXPECT_EQ(heard_, "!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C\r\n");
}

TEST_F(SerialSourceTest, ReceiverThatIsUnpluggedIsAnErrorAndIsTriedAgain) {
    ASSERT_TRUE(source_->State().open) << source_->State().error;
    Unplug();
    Until([this] { return !source_->State().open; });
    EXPECT_NE(source_->State().error, "");
    source_->Tick(kNow + Retry::kFirstPause);
    EXPECT_FALSE(source_->State().open) << "the line is gone";
    EXPECT_NE(source_->State().error, "");
}

}  // namespace
}  // namespace Tarvik::Ais
