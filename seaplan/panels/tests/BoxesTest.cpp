// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/window/BoxOwner.h"
#include "seaplan/panels/window/Boxes.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using Interface::SysMsgHandleRes;

namespace {

class Owner final : public BoxOwner {
  public:
    std::vector<bool> enabled;
    void SetEnabled(bool on) override { enabled.push_back(on); }
    void* Handle() const override { return const_cast<Owner*>(this); }
};

/// A person who opens a second box while the first is up.
class NestingSink final : public Interface::SysMsgSink {
  public:
    explicit NestingSink(Boxes& boxes) : boxes_(boxes) { Set(this); }
    ~NestingSink() override { Set(nullptr); }
    NestingSink(const NestingSink&) = delete;
    NestingSink& operator=(const NestingSink&) = delete;

    SysMsgHandleRes SyncSendMsg(int, const std::u16string&, int, void*, const std::u16string&) override {
        if (++depth_ == 1) {
            boxes_.Notice(TextIds::IDS_PORTCALL_ERRETA);
        }
        return SysMsgHandleRes::None;
    }

  private:
    Boxes& boxes_;
    int depth_ = 0;
};

}  // namespace

TEST(Boxes, KindsAndAnswersAreTheHosts) {
    const KeyTexts texts;
    TestSupport::RecordingMsgSink sink;
    Owner owner;
    Boxes boxes(owner);
    sink.Answer(SysMsgHandleRes::Yes);
    EXPECT_TRUE(boxes.Question(TextIds::IDS_PORTCALL_CLOSESAVE));
    sink.Answer(SysMsgHandleRes::No);
    EXPECT_FALSE(boxes.Question(TextIds::IDS_PORTCALL_CLOSESAVE));
    sink.Answer(SysMsgHandleRes::Ok);
    EXPECT_TRUE(boxes.Confirm(TextIds::IDS_PORTCALL_CLEARFORBLANK));
    sink.Answer(SysMsgHandleRes::Cancel);
    EXPECT_FALSE(boxes.Confirm(TextIds::IDS_PORTCALL_CLEARFORBLANK));
    boxes.Notice(TextIds::IDS_PORTCALL_ERRETA);
    boxes.NoticeText("In words");
    ASSERT_EQ(sink.messages.size(), 6U);
    EXPECT_EQ(sink.messages[0].flags, 4);
    EXPECT_EQ(sink.messages[2].flags, 1);
    EXPECT_EQ(sink.messages[4].flags, 0);
    EXPECT_EQ(sink.messages[4].text, "IDS_PORTCALL_ERRETA");
    EXPECT_EQ(sink.messages[5].text, "In words");
    for (const auto& message : sink.messages) {
        EXPECT_EQ(message.level, 1);
        EXPECT_EQ(message.title, "");
        EXPECT_EQ(message.owner, &owner);
    }
}

TEST(Boxes, OnlyARefusalHasATitle) {
    TestSupport::RecordingMsgSink sink;
    Owner owner;
    Boxes(owner).Refusal("Failed!", "Error");
    ASSERT_EQ(sink.messages.size(), 1U);
    EXPECT_EQ(sink.messages[0].text, "Failed!");
    EXPECT_EQ(sink.messages[0].title, "Error");
    EXPECT_EQ(sink.messages[0].flags, 0);
}

TEST(Boxes, TheWindowIsDisabledUntilTheLastBoxIsGone) {
    Owner owner;
    Boxes boxes(owner);
    const NestingSink sink(boxes);
    boxes.Notice(TextIds::IDS_PORTCALL_ERRETA);
    EXPECT_EQ(owner.enabled, (std::vector<bool>{false, true}));
}

}  // namespace Tarvik::Seaplan
