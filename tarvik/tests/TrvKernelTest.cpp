// SPDX-License-Identifier: MIT
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TrvKernel.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Core {

namespace {

/// Notes its calls in a shared diary and does what the test sets.
class Listener : public TObject {
  public:
    Listener(std::string name, std::vector<std::string>& diary) : name_(std::move(name)), diary_(diary) {
        delegate.Set<&Listener::Handle>(this);
    }
    void* Handle(void* input) {
        diary_.push_back(name_);
        lastInput = input;
        if (action) {
            action();
        }
        return answer;
    }
    TEvent delegate;
    void* answer = nullptr;
    void* lastInput = nullptr;
    std::function<void()> action;

  private:
    std::string name_;
    std::vector<std::string>& diary_;
};

class TrvKernelTest : public testing::Test {
  protected:
    using Notices = std::vector<std::pair<KernelNotice, std::string>>;

    void SetUp() override {
        BusTesting::ForgetAll();
        kernel->SetObserver(
            [this](KernelNotice kind, const std::string& name) { notices.emplace_back(kind, name); });
    }
    void TearDown() override {
        kernel->SetObserver({});
        BusTesting::ForgetAll();
        TrvKernel::SetMainView(nullptr, nullptr);
    }
    void CreateService(const char* name) { kernel->CreateTrvService(name, &first, "", "", nullptr); }
    void CreateEvent(const char* name) { kernel->CreateTrvEvent(name, &first, "", "", nullptr); }

    TrvKernel* kernel = TrvKernel::Instance();
    std::vector<std::string> diary;
    Notices notices;
    Listener first{"first", diary};
    Listener second{"second", diary};
    Listener third{"third", diary};
};

TEST_F(TrvKernelTest, IsOneAndNeverNull) {
    ASSERT_NE(kernel, nullptr);
    EXPECT_EQ(kernel, TrvKernel::Instance());
}

TEST_F(TrvKernelTest, MainViewIsNullUntilTheHostSetsIt) {
    EXPECT_EQ(TrvKernel::MainViewHWnd(), nullptr);
    int window = 0;
    int module = 0;
    TrvKernel::SetMainView(&window, &module);
    EXPECT_EQ(TrvKernel::MainViewHWnd(), &window);
    EXPECT_EQ(TrvKernel::AppModule(), &module);
}

TEST_F(TrvKernelTest, ServiceGetsInputAndGivesResult) {
    int input = 0;
    int output = 0;
    first.answer = &output;
    CreateService("S");
    EXPECT_FALSE(kernel->IsBound("S"));
    EXPECT_TRUE(kernel->BindTrvService("S", &first.delegate));
    EXPECT_TRUE(kernel->IsBound("S"));
    void* result = nullptr;
    EXPECT_TRUE(kernel->CallTrvService("S", &input, result));
    EXPECT_EQ(result, &output);
    EXPECT_EQ(first.lastInput, &input);
    EXPECT_TRUE(kernel->CallTrvService("S", nullptr));
    EXPECT_EQ(diary.size(), 2U);
    EXPECT_TRUE(notices.empty());
}

TEST_F(TrvKernelTest, ServiceThatNobodyOffersLeavesThePresetResult) {
    int preset = 0;
    void* result = &preset;
    EXPECT_FALSE(kernel->CallTrvService("S", nullptr, result));
    EXPECT_EQ(result, &preset);
    CreateService("S");
    EXPECT_FALSE(kernel->CallTrvService("S", nullptr));
    EXPECT_EQ(notices, (Notices{{KernelNotice::NobodyOffers, "S"}, {KernelNotice::NobodyOffers, "S"}}));
}

TEST_F(TrvKernelTest, AnEventIsNoService) {
    CreateEvent("E");
    kernel->BindTrvEvent("E", &first.delegate);
    EXPECT_FALSE(kernel->CallTrvService("E", nullptr));
    EXPECT_TRUE(diary.empty());
    EXPECT_EQ(notices, (Notices{{KernelNotice::NobodyOffers, "E"}}));
}

TEST_F(TrvKernelTest, ServiceTakesOneHandler) {
    CreateService("S");
    EXPECT_TRUE(kernel->BindTrvService("S", &first.delegate));
    EXPECT_FALSE(kernel->BindTrvService("S", &second.delegate));
    EXPECT_FALSE(kernel->BindTrvService("S", &first.delegate));
    EXPECT_FALSE(kernel->BindTrvService("S", nullptr));
    EXPECT_EQ(notices, (Notices{{KernelNotice::BoundTwice, "S"}, {KernelNotice::BoundTwice, "S"}}));
    kernel->CallTrvService("S", nullptr);
    EXPECT_EQ(diary, std::vector<std::string>{"first"});
}

TEST_F(TrvKernelTest, AServiceThatAnswersKeepsItsOwner) {
    CreateService("S");
    kernel->BindTrvService("S", &first.delegate);
    kernel->CreateTrvService("S", &second, "", "", nullptr);
    EXPECT_EQ(notices, (Notices{{KernelNotice::BoundTwice, "S"}}));
    kernel->DeleteTrvService("S", &second);
    EXPECT_TRUE(kernel->CallTrvService("S", nullptr));
    kernel->DeleteTrvService("S", &first);
    EXPECT_FALSE(kernel->CallTrvService("S", nullptr));
}

TEST_F(TrvKernelTest, ServiceBoundWithoutBeingCreatedWorksAndIsNoticed) {
    EXPECT_TRUE(kernel->BindTrvService("S", &first.delegate));
    EXPECT_EQ(notices, (Notices{{KernelNotice::UnknownName, "S"}}));
    EXPECT_TRUE(kernel->CallTrvService("S", nullptr));
}

TEST_F(TrvKernelTest, UnboundServiceNoLongerAnswers) {
    CreateService("S");
    kernel->BindTrvService("S", &first.delegate);
    kernel->UnBindTrvService("S", &first.delegate);
    EXPECT_FALSE(kernel->CallTrvService("S", nullptr));
    kernel->DeleteTrvService("S", &first);
    notices.clear();
    kernel->DeleteTrvService("S", &first);
    EXPECT_EQ(notices, (Notices{{KernelNotice::UnknownName, "S"}}));
}

TEST_F(TrvKernelTest, DelegateGivenAtCreationIsBound) {
    kernel->CreateTrvService("S", &first, "", "", &first.delegate);
    kernel->CreateTrvEvent("E", &first, "", "", &second.delegate);
    EXPECT_TRUE(kernel->IsBound("S"));
    EXPECT_TRUE(kernel->IsBound("E"));
}

TEST_F(TrvKernelTest, SubscribersAreCalledInOrderOfSubscription) {
    int answers[3] = {};
    first.answer = &answers[0];
    second.answer = &answers[1];
    third.answer = &answers[2];
    CreateEvent("E");
    kernel->BindTrvEvent("E", &second.delegate);
    kernel->BindTrvEvent("E", &third.delegate);
    kernel->BindTrvEvent("E", &first.delegate);
    EXPECT_EQ(kernel->RaiseTrvEvent("E", nullptr),
              (std::vector<void*>{&answers[1], &answers[2], &answers[0]}));
    EXPECT_EQ(diary, (std::vector<std::string>{"second", "third", "first"}));
}

TEST_F(TrvKernelTest, EventMayBeBoundBeforeItIsCreated) {
    EXPECT_TRUE(kernel->BindTrvEvent("E", &first.delegate));
    EXPECT_TRUE(notices.empty());
    CreateEvent("E");
    kernel->RaiseTrvEvent("E", nullptr);
    EXPECT_EQ(diary, std::vector<std::string>{"first"});
}

TEST_F(TrvKernelTest, EventThatNobodyCreatedIsStillRaised) {
    kernel->BindTrvEvent("E", &first.delegate);
    EXPECT_EQ(kernel->RaiseTrvEvent("E", nullptr).size(), 1U);
    EXPECT_TRUE(kernel->RaiseTrvEvent("Other", nullptr).empty());
}

TEST_F(TrvKernelTest, SameDelegateSubscribesOnce) {
    EXPECT_TRUE(kernel->BindTrvEvent("E", &first.delegate));
    EXPECT_FALSE(kernel->BindTrvEvent("E", &first.delegate));
    EXPECT_FALSE(kernel->BindTrvEvent("E", nullptr));
    EXPECT_EQ(notices, (Notices{{KernelNotice::BoundTwice, "E"}}));
}

TEST_F(TrvKernelTest, ServiceWithAHandlerTakesNoSubscriber) {
    CreateService("S");
    EXPECT_TRUE(kernel->BindTrvService("S", &first.delegate));
    EXPECT_FALSE(kernel->BindTrvEvent("S", &second.delegate));
    EXPECT_EQ(notices, (Notices{{KernelNotice::BoundTwice, "S"}}));
    kernel->CallTrvService("S", nullptr);
    EXPECT_EQ(diary, std::vector<std::string>{"first"});
}

TEST_F(TrvKernelTest, ObserverMayReplaceItself) {
    std::string seen;
    kernel->SetObserver([this, &seen, kept = std::string(100, 'x')](KernelNotice, const std::string& name) {
        kernel->SetObserver([&seen](KernelNotice, const std::string& later) { seen += "later " + later; });
        seen += kept.substr(0, 1) + name + " ";
    });
    kernel->CallTrvService("A", nullptr);
    kernel->CallTrvService("B", nullptr);
    EXPECT_EQ(seen, "xA later B");
}

TEST_F(TrvKernelTest, NewOwnerKeepsTheSubscribersAndIsTheOneToDelete) {
    CreateEvent("E");
    kernel->BindTrvEvent("E", &third.delegate);
    kernel->CreateTrvEvent("E", &second, "", "", nullptr);
    EXPECT_TRUE(kernel->IsBound("E"));
    kernel->DeleteTrvEvent("E", &first);
    EXPECT_TRUE(kernel->IsBound("E"));
    kernel->DeleteTrvEvent("E", &second);
    EXPECT_FALSE(kernel->IsBound("E"));
}

TEST_F(TrvKernelTest, HandlerMayRaiseAndCallInTurn) {
    CreateService("S");
    kernel->BindTrvService("S", &second.delegate);
    kernel->BindTrvEvent("E", &first.delegate);
    kernel->BindTrvEvent("E", &third.delegate);
    first.action = [this] {
        first.action = nullptr;
        kernel->CallTrvService("S", nullptr);
        kernel->RaiseTrvEvent("E", nullptr);
    };
    kernel->RaiseTrvEvent("E", nullptr);
    EXPECT_EQ(diary, (std::vector<std::string>{"first", "second", "first", "third", "third"}));
}

TEST_F(TrvKernelTest, UnbindOfSomethingUnknownIsNoticed) {
    kernel->UnBindTrvEvent("E", &first.delegate);
    kernel->BindTrvEvent("E", &first.delegate);
    kernel->UnBindTrvEvent("E", &second.delegate);
    EXPECT_EQ(notices, (Notices{{KernelNotice::UnknownUnbind, "E"}, {KernelNotice::UnknownUnbind, "E"}}));
    EXPECT_TRUE(kernel->IsBound("E"));
}

TEST_F(TrvKernelTest, ChannelMadeWithTheEventFormsMayGoWithTheServiceForms) {
    CreateEvent("E");
    kernel->BindTrvEvent("E", &first.delegate);
    kernel->UnBindTrvService("E", &first.delegate);
    kernel->DeleteTrvService("E", &first);
    EXPECT_TRUE(notices.empty());
    EXPECT_FALSE(kernel->IsBound("E"));
    EXPECT_TRUE(kernel->RaiseTrvEvent("E", nullptr).empty());
}

TEST_F(TrvKernelTest, OnlyTheOwnerDeletes) {
    CreateEvent("E");
    kernel->BindTrvEvent("E", &first.delegate);
    kernel->DeleteTrvEvent("E", &second);
    EXPECT_EQ(notices, (Notices{{KernelNotice::UnknownName, "E"}}));
    EXPECT_TRUE(kernel->IsBound("E"));
    kernel->DeleteTrvEvent("E", &first);
    EXPECT_FALSE(kernel->IsBound("E"));
}

TEST_F(TrvKernelTest, HandlerMayUnbindItselfAndOthers) {
    for (Listener* listener : {&first, &second, &third}) {
        kernel->BindTrvEvent("E", &listener->delegate);
    }
    first.action = [this] {
        kernel->UnBindTrvEvent("E", &first.delegate);
        kernel->UnBindTrvEvent("E", &second.delegate);
    };
    EXPECT_EQ(kernel->RaiseTrvEvent("E", nullptr).size(), 2U);
    EXPECT_EQ(diary, (std::vector<std::string>{"first", "third"}));
}

TEST_F(TrvKernelTest, HandlerMayDeleteTheEvent) {
    CreateEvent("E");
    kernel->BindTrvEvent("E", &first.delegate);
    kernel->BindTrvEvent("E", &second.delegate);
    first.action = [this] { kernel->DeleteTrvEvent("E", &first); };
    kernel->RaiseTrvEvent("E", nullptr);
    EXPECT_EQ(diary, std::vector<std::string>{"first"});
}

TEST_F(TrvKernelTest, SubscriberThatJoinsDuringARaiseWaitsForTheNext) {
    kernel->BindTrvEvent("E", &first.delegate);
    first.action = [this] {
        first.action = nullptr;
        kernel->BindTrvEvent("E", &second.delegate);
    };
    kernel->RaiseTrvEvent("E", nullptr);
    EXPECT_EQ(diary, std::vector<std::string>{"first"});
    kernel->RaiseTrvEvent("E", nullptr);
    EXPECT_EQ(diary, (std::vector<std::string>{"first", "first", "second"}));
}

TEST_F(TrvKernelTest, ServiceHandlerMayRemoveItsOwnService) {
    int output = 0;
    first.answer = &output;
    CreateService("S");
    kernel->BindTrvService("S", &first.delegate);
    first.action = [this] {
        kernel->UnBindTrvService("S", &first.delegate);
        kernel->DeleteTrvService("S", &first);
    };
    void* result = nullptr;
    EXPECT_TRUE(kernel->CallTrvService("S", nullptr, result));
    EXPECT_EQ(result, &output);
}

TEST_F(TrvKernelTest, NullNamesAreHarmless) {
    EXPECT_FALSE(kernel->BindTrvEvent(nullptr, &first.delegate));
    EXPECT_FALSE(kernel->BindTrvService(nullptr, &first.delegate));
    EXPECT_FALSE(kernel->CallTrvService(nullptr, nullptr));
    EXPECT_TRUE(kernel->RaiseTrvEvent(nullptr, nullptr).empty());
    EXPECT_FALSE(kernel->IsBound(nullptr));
}

TEST_F(TrvKernelTest, EmptyDelegateAnswersNull) {
    TEvent empty;
    EXPECT_FALSE(empty.IsSet());
    EXPECT_EQ(empty.Call(&empty), nullptr);
    static_assert(sizeof(TEvent) == 2 * sizeof(void*));
}

TEST_F(TrvKernelTest, TypedCallAndRaiseCarryTheirPayloads) {
    const std::string user = "1000007";
    first.answer = const_cast<std::string*>(&user);
    CreateService("TRV_S_USER");
    kernel->BindTrvService("TRV_S_USER", &first.delegate);
    EXPECT_EQ(Interface::Call(Interface::Bus::User), &user);
    EXPECT_EQ(Interface::Call(Interface::Bus::CurrentTimeZone), nullptr);

    Interface::PanelShow show{3, 0};
    kernel->BindTrvEvent("TRV_MAP_WND_SHOW", &second.delegate);
    Interface::Raise(Interface::Bus::ShowPanel, &show);
    EXPECT_EQ(second.lastInput, &show);
}

}  // namespace
}  // namespace Tarvik::Core
