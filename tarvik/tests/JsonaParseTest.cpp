// SPDX-License-Identifier: MIT
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include <tarvik/util/Jsona.h>

namespace Tarvik::Util {

namespace {

using namespace std::string_view_literals;

std::string Nested(int levels) {
    return std::string(levels, '[') + std::string(levels, ']');
}

class JsonaLegalTest : public testing::TestWithParam<std::string_view> {};

TEST_P(JsonaLegalTest, Parses) {
    Jsona value;
    EXPECT_TRUE(value.parse(GetParam())) << value.ErrorText() << " at " << value.ErrorOffset();
    EXPECT_EQ(value.ErrorOffset(), 0U);
    EXPECT_STREQ(value.ErrorText(), "");
    EXPECT_NE(value.kind(), Jsona::Kind::None);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, JsonaLegalTest,
    testing::Values(
        "{}"sv, "[]"sv, "null"sv, "true"sv, "false"sv, "0"sv, "-0"sv, "12"sv, "1.5"sv, "-2.5e-3"sv, "1E+9"sv,
        "\"\""sv, " \t\r\n[ 1 , 2 ] \n"sv, "{\"a\":1}"sv, "{a:\"x\",b:[1,2]}"sv, "{_b$1 : 2}"sv, "{$:1}"sv,
        "{true:1,null:2}"sv, "{\"\":1}"sv, "\"a\nb\""sv, "\"\0\""sv, "\"\x01\x7f\""sv,
        "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e9\\u0000\""sv, "\"\\ud83d\\ude00\""sv, "\"\\uD83D\\uDE00\""sv,
        "\"\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xf0\x90\x80\x80\xf4\x8f\xbf\xbf\""sv,
        "\"\\\\\xe4\xb8\xad\xe6\x96\x87\""sv, "123456789012345678901234567890"sv, "1e999"sv));

struct IllegalCase {
    std::string_view text;
    std::size_t offset;
};

void PrintTo(const IllegalCase& c, std::ostream* out) {
    *out << testing::PrintToString(std::string(c.text));
}

class JsonaIllegalTest : public testing::TestWithParam<IllegalCase> {};

TEST_P(JsonaIllegalTest, IsRefusedWithItsOffset) {
    Jsona value;
    ASSERT_TRUE(value.parse("[1]"));
    EXPECT_FALSE(value.parse(GetParam().text));
    EXPECT_EQ(value.ErrorOffset(), GetParam().offset) << value.ErrorText();
    EXPECT_STRNE(value.ErrorText(), "");
    EXPECT_EQ(value.kind(), Jsona::Kind::None);
    EXPECT_EQ(value.size(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Structure, JsonaIllegalTest,
    testing::Values(IllegalCase{""sv, 0}, IllegalCase{" \n"sv, 2}, IllegalCase{"[1,]"sv, 3},
                    IllegalCase{"{\"a\":1,}"sv, 7}, IllegalCase{"{a:1,}"sv, 5}, IllegalCase{"[,1]"sv, 1},
                    IllegalCase{"[1 2]"sv, 3}, IllegalCase{"{a 1}"sv, 3}, IllegalCase{"{a:}"sv, 3},
                    IllegalCase{"{a:1 b:2}"sv, 5}, IllegalCase{"{1a:1}"sv, 1}, IllegalCase{"{a-b:1}"sv, 2},
                    IllegalCase{"{'a':1}"sv, 1}, IllegalCase{"['a']"sv, 1}, IllegalCase{"[1]x"sv, 3},
                    IllegalCase{"{} {}"sv, 3}, IllegalCase{"1 2"sv, 2}, IllegalCase{"//c\n1"sv, 0},
                    IllegalCase{"[1/*c*/]"sv, 2}, IllegalCase{"["sv, 1}, IllegalCase{"{"sv, 1},
                    IllegalCase{"[1"sv, 2}, IllegalCase{"{a"sv, 2}, IllegalCase{"{a:"sv, 3},
                    IllegalCase{"{a:1"sv, 4}, IllegalCase{"]"sv, 0}, IllegalCase{"[1}"sv, 2},
                    IllegalCase{"[1]\0"sv, 3}, IllegalCase{"\xef\xbb\xbf[]"sv, 0}, IllegalCase{"\v1"sv, 0},
                    IllegalCase{"{\xc3\xa9:1}"sv, 1}));

INSTANTIATE_TEST_SUITE_P(
    Scalars, JsonaIllegalTest,
    testing::Values(IllegalCase{"tru"sv, 0}, IllegalCase{"True"sv, 0}, IllegalCase{"truex"sv, 4},
                    IllegalCase{"nul"sv, 0}, IllegalCase{"NaN"sv, 0}, IllegalCase{"word"sv, 0},
                    IllegalCase{"01"sv, 1}, IllegalCase{"-"sv, 1}, IllegalCase{"+1"sv, 0},
                    IllegalCase{"1."sv, 2}, IllegalCase{".5"sv, 0}, IllegalCase{"1.e5"sv, 2},
                    IllegalCase{"1e"sv, 2}, IllegalCase{"1e+"sv, 3}, IllegalCase{"0x10"sv, 1},
                    IllegalCase{"-a"sv, 1}, IllegalCase{"1_0"sv, 1}));

INSTANTIATE_TEST_SUITE_P(
    Texts, JsonaIllegalTest,
    testing::Values(IllegalCase{"\""sv, 1}, IllegalCase{"\"abc"sv, 4}, IllegalCase{"\"\\"sv, 1},
                    IllegalCase{"\"\\n"sv, 3}, IllegalCase{"\"ab\\x\""sv, 3}, IllegalCase{"\"\\'\""sv, 1},
                    IllegalCase{"\"\\U0041\""sv, 1}, IllegalCase{"\"\\u12g4\""sv, 1},
                    IllegalCase{"\"\\u12\""sv, 1}, IllegalCase{"\"\\u"sv, 1},
                    IllegalCase{"\"a\\ud83d\""sv, 2}, IllegalCase{"\"\\ude00\""sv, 1},
                    IllegalCase{"\"\\ud83d\\n\""sv, 1}, IllegalCase{"\"\\ud83d\\u0041\""sv, 1},
                    IllegalCase{"\"\\ud83d\\ud83d\""sv, 1}, IllegalCase{"\"a\x80\""sv, 2},
                    IllegalCase{"\"\xc0\xaf\""sv, 1}, IllegalCase{"\"\xc3\""sv, 1},
                    IllegalCase{"\"\xe0\x80\x80\""sv, 1}, IllegalCase{"\"\xed\xa0\x80\""sv, 1},
                    IllegalCase{"\"\xe4\xb8\""sv, 1}, IllegalCase{"\"\xf0\x80\x80\x80\""sv, 1},
                    IllegalCase{"\"\xf4\x90\x80\x80\""sv, 1}, IllegalCase{"\"\xf5\x80\x80\x80\""sv, 1},
                    IllegalCase{"\"\xff\""sv, 1}, IllegalCase{"\"\\n\x80\""sv, 3},
                    IllegalCase{"\"\xe4\xb8\xad\xe4\xb8"sv, 4}, IllegalCase{"{\"a\\q\":1}"sv, 3}));

TEST(JsonaDepthTest, SixtyFourLevelsAreRead) {
    Jsona value;
    EXPECT_TRUE(value.parse(Nested(64)));
    EXPECT_FALSE(value.parse(Nested(65)));
    EXPECT_EQ(value.ErrorOffset(), 64U);
}

TEST(JsonaDepthTest, AMillionOpenBracketsAreRefused) {
    Jsona value;
    EXPECT_FALSE(value.parse(std::string(1'000'000, '[')));
    EXPECT_EQ(value.ErrorOffset(), 64U);
}

// Bad bytes must be found wherever they fall within the blocks that the scan reads.
TEST(JsonaScanTest, EveryPlaceOfABlockIsLookedAt) {
    for (std::size_t length = 0; length < 70; ++length) {
        const std::string head(length, 'a');
        Jsona value;
        ASSERT_TRUE(value.parse('"' + head + '"'));
        EXPECT_EQ(value.text(), head);
        ASSERT_TRUE(value.parse('"' + head + "\\n\xe4\xb8\xad" + head + '"'));
        EXPECT_EQ(value.text(), head + "\n\xe4\xb8\xad" + head);
        ASSERT_FALSE(value.parse('"' + head + "\x80\""));
        EXPECT_EQ(value.ErrorOffset(), length + 1);
        ASSERT_FALSE(value.parse('"' + head));
        EXPECT_EQ(value.ErrorOffset(), length + 1);
    }
}

TEST(JsonaScanTest, TextLongerThanAnyAddressIsRefusedUnread) {
    const char byte = '1';
    Jsona value;
    EXPECT_FALSE(value.parse(std::string_view(&byte, std::size_t{1} << 40)));
    EXPECT_STREQ(value.ErrorText(), "text too long");
}

}  // namespace
}  // namespace Tarvik::Util
