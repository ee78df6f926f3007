// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/data/Outcome.h"

namespace Tarvik::Seaplan {

namespace {

enum class Step { Open, Parse, Write, Forgotten };
constexpr CodeTable kCodes{
    Code{Step::Open, -1},
    Code{Step::Parse, kOwnNumber},
    Code{Step::Write, -7},
};

Outcome<Step> Fail(Step step) {
    return step;
}

TEST(CodeTable, SuccessIsZeroAndEveryFailedStepHasItsNumber) {
    static_assert(kCodes.Of(Outcome<Step>()) == 0);
    static_assert(kCodes.Of(Step::Open) == -1);
    EXPECT_EQ(kCodes.Of({}), 0);
    EXPECT_EQ(kCodes.Of(Fail(Step::Open)), -1);
    EXPECT_EQ(kCodes.Of(Fail(Step::Write)), -7);
}

TEST(CodeTable, StepWithNumbersOfItsOwnHandsThemOn) {
    EXPECT_EQ(kCodes.Of({Step::Parse, -13}), -13);
    EXPECT_EQ(kCodes.Of({Step::Write, -13}), -7) << "a step with a number of the table has that one";
}

TEST(CodeTable, ForgottenStepDoesNotLookLikeSuccess) {
    EXPECT_LT(kCodes.Of(Fail(Step::Forgotten)), -1);
    EXPECT_LT(kCodes.Of(Fail(Step::Parse)), 0) << "nor does one whose own number is missing";
}

TEST(CodeTable, RefusesNumbersAndStepsThatComeTwiceAndNumbersAboveZero) {
    EXPECT_THROW((CodeTable{Code{Step::Open, -1}, Code{Step::Parse, -1}}), std::invalid_argument);
    EXPECT_THROW((CodeTable{Code{Step::Open, -1}, Code{Step::Open, -2}}), std::invalid_argument);
    EXPECT_THROW((CodeTable{Code{Step::Open, 1}}), std::invalid_argument);
}

TEST(Outcome, TellsWhereItFailed) {
    const Outcome<Step> failed(Step::Write, -3);
    EXPECT_TRUE(failed.Failed());
    EXPECT_EQ(failed.At(), Step::Write);
    EXPECT_EQ(failed.Detail(), -3);
    EXPECT_FALSE(Outcome<Step>().Failed());
}

}  // namespace
}  // namespace Tarvik::Seaplan
