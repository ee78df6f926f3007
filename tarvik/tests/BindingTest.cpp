// SPDX-License-Identifier: MIT
// Handlers on the bus: bound to the types of their name, and bound no longer than they are kept.
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/core/TrvKernel.h>

namespace Tarvik::Interface {
namespace {

using Detail::Handles;
using Text = const std::string;

constexpr Service<Text, const int> kLength{"TRV_S_TEST_LENGTH"};
constexpr Service<None, None> kPlain{"TRV_S_TEST_PLAIN"};
constexpr Event<Text> kHeard{"TRV_E_TEST_HEARD"};
constexpr Event<Text, const char> kAnswered{"TRV_MAP_TEST_CLICK"};

// What fits a name and what does not.
static_assert(Handles<const int* (*)(const std::string*), Text, const int>);
static_assert(Handles<int* (*)(const std::string&), Text, const int>);
static_assert(Handles<void (*)(), None, None>);
static_assert(!Handles<void* (*)(void*), Text, const int>, "an untyped handler");
static_assert(!Handles<const int* (*)(const void*), Text, const int>, "an untyped input");
static_assert(!Handles<void* (*)(const std::string*), Text, const int>, "an untyped answer");
static_assert(!Handles<const int* (*)(const int*), Text, const int>, "another input");
static_assert(!Handles<const int* (*)(std::string*), Text, const int>, "an input that is only read");
static_assert(!Handles<const char* (*)(const std::string*), Text, const int>, "another answer");
static_assert(!Handles<void (*)(const std::string*), Text, const int>, "no answer where one is due");
static_assert(!Handles<const int* (*)(const std::string*), Text, None>, "an answer where none is heard");
static_assert(!Handles<const int* (*)(bool), Text, const int>, "a pointer is no bool");
static_assert(!Handles<void (*)(const std::string*), None, None>, "an input where there is none");
static_assert(!Handles<const int* (*)(), Text, const int>, "no input where there is one");

class Meter : public Core::TObject {
  public:
    Binding OfferLength() { return Offer(kLength, this, &Meter::OnLength); }
    Binding HearAll() { return Subscribe(kHeard, this, &Meter::OnHeard); }

    std::vector<std::string> heard;

  private:
    const int* OnLength(const std::string* text) {
        length_ = text != nullptr ? static_cast<int>(text->size()) : -1;
        return &length_;
    }
    void OnHeard(const std::string& text) { heard.push_back(text); }

    int length_ = 0;
};

class BindingTest : public testing::Test {
  protected:
    BindingTest() {
        kernel->SetObserver([this](Core::KernelNotice, const std::string& name) { notices.push_back(name); });
    }
    ~BindingTest() override { kernel->SetObserver({}); }

    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    std::vector<std::string> notices;
    Meter meter;
    const std::string word = "four";
};

TEST_F(BindingTest, ServiceAnswersWhileItsBindingLives) {
    {
        const Binding length = meter.OfferLength();
        EXPECT_TRUE(length.IsBound());
        EXPECT_TRUE(IsOffered(kLength));
        EXPECT_EQ(*Call(kLength, &word), 4);
    }
    EXPECT_FALSE(IsOffered(kLength));
    EXPECT_TRUE(notices.empty());
    EXPECT_EQ(Call(kLength, &word), nullptr);
}

TEST_F(BindingTest, HandlerThatTakesAPointerIsToldOfANullInput) {
    const Binding length = meter.OfferLength();
    EXPECT_EQ(*Call(kLength, nullptr), -1);
}

TEST_F(BindingTest, HandlerThatTakesAReferenceIsNotCalledForANullInput) {
    const Binding hearing = meter.HearAll();
    EXPECT_EQ(Raise(kHeard, nullptr), 1U);
    EXPECT_EQ(Raise(kHeard, &word), 1U);
    EXPECT_EQ(meter.heard, std::vector<std::string>{"four"});
}

TEST_F(BindingTest, SecondHandlerOfAServiceIsRefusedAndTheFirstStays) {
    const Binding first = meter.OfferLength();
    {
        Meter other;
        EXPECT_FALSE(other.OfferLength().IsBound());
    }
    EXPECT_EQ(*Call(kLength, &word), 4);
    EXPECT_EQ(notices, (std::vector<std::string>{"TRV_S_TEST_LENGTH", "TRV_S_TEST_LENGTH"}));
}

TEST_F(BindingTest, BindingMovesWithoutBeingUnbound) {
    Binding first = meter.OfferLength();
    Binding second = std::move(first);
    EXPECT_TRUE(second.IsBound());
    EXPECT_EQ(*Call(kLength, &word), 4);
    second = Binding();
    EXPECT_FALSE(IsOffered(kLength));
    EXPECT_TRUE(notices.empty());
}

TEST_F(BindingTest, WithdrawingTwiceIsNoMatter) {
    Binding hearing = meter.HearAll();
    hearing.Withdraw();
    hearing.Withdraw();
    EXPECT_EQ(Raise(kHeard, &word), 0U);
    EXPECT_TRUE(notices.empty());
}

TEST_F(BindingTest, HandlerMayEndItsOwnBinding) {
    std::optional<Binding> once;
    std::string captured;
    once = Subscribe(kHeard, [&once, &captured, prefix = std::string("heard ")](const std::string& text) {
        once.reset();
        captured = prefix + text;
    });
    EXPECT_EQ(Raise(kHeard, &word), 1U);
    EXPECT_EQ(captured, "heard four");
    EXPECT_EQ(Raise(kHeard, &word), 0U);
}

TEST_F(BindingTest, CallableWithoutAnObjectIsItsOwnOwner) {
    int calls = 0;
    {
        const Binding plain = Offer(kPlain, [&calls] { ++calls; });
        Call(kPlain);
    }
    Call(kPlain);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(notices, std::vector<std::string>{"TRV_S_TEST_PLAIN"}) << "the second call finds nobody";
}

/// Owns an event and answers it.
class Clicked : public Core::TObject {
  public:
    explicit Clicked(BindingKind kind) : click_(Announce(kAnswered, this, &Clicked::OnClick, kind)) {}

  private:
    const char* OnClick(const std::string& id) { return id.empty() ? "-1" : nullptr; }
    Binding click_;
};

TEST_F(BindingTest, OwnEventGoesWithItsOwnerByEitherForm) {
    for (const BindingKind kind : {BindingKind::OwnEvent, BindingKind::ClickChannel}) {
        {
            const Clicked clicked(kind);
            const std::string empty;
            EXPECT_EQ(Raise(kAnswered, &word), std::vector<const char*>{nullptr});
            EXPECT_STREQ(Raise(kAnswered, &empty).at(0), "-1");
        }
        EXPECT_FALSE(kernel->IsBound(kAnswered.name));
        EXPECT_TRUE(notices.empty()) << "the name was deleted by its owner";
    }
}

TEST_F(BindingTest, ListIsWithdrawnInTheOppositeOrder) {
    BindingList list;
    EXPECT_TRUE(list.Keep(meter.HearAll()));
    std::vector<std::string> order;
    struct Mark {
        Mark(std::vector<std::string>& out, std::string text) : out_(&out), text_(std::move(text)) {}
        Mark(const Mark&) = delete;
        ~Mark() { out_->push_back(text_); }
        std::vector<std::string>* out_;
        std::string text_;
    };
    for (const char* name : {"first", "second"}) {
        auto mark = std::make_shared<Mark>(order, name);
        EXPECT_TRUE(list.Keep(Subscribe(kHeard, [mark](const std::string&) {})));
    }
    EXPECT_FALSE(list.Keep(Binding()));
    list.Withdraw();
    EXPECT_EQ(order, (std::vector<std::string>{"second", "first"}));
    EXPECT_EQ(Raise(kHeard, &word), 0U);
}

}  // namespace
}  // namespace Tarvik::Interface
