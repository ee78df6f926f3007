// SPDX-License-Identifier: MIT
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/util/AutoBuffer.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Util {

namespace {

using Pieces = std::vector<std::string>;

TEST(TranslateTest, GoesBothWays) {
    const std::string narrow = "A\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80";
    const std::u16string wide = u"A\u00e9\u4e2d\U0001F600";
    EXPECT_EQ(StringUtl::TranslateString(narrow), wide);
    EXPECT_EQ(StringUtl::TranslateString(wide), narrow);
    EXPECT_EQ(StringUtl::TranslateString(std::string()), u"");
    EXPECT_EQ(StringUtl::TranslateString(std::u16string()), "");
    EXPECT_EQ(StringUtl::TranslateString(std::string("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST(TranslateTest, BadSequencesBecomeTheReplacementCharacter) {
    EXPECT_EQ(StringUtl::TranslateString(std::string("a\xff"
                                                     "b")),
              u"a\uFFFDb");
    EXPECT_EQ(StringUtl::TranslateString(std::string("\xe4\xb8")), u"\uFFFD");
    const std::u16string lone{u'a', static_cast<char16_t>(0xD800), u'b'};
    EXPECT_EQ(StringUtl::TranslateString(lone),
              "a\xef\xbf\xbd"
              "b");
}

TEST(SplitTest, KeepsEveryPiece) {
    Pieces out{"old"};
    EXPECT_TRUE(StringUtl::split("a|b||c|", "|", out));
    EXPECT_EQ(out, (Pieces{"a", "b", "", "c", ""}));
    EXPECT_TRUE(StringUtl::split("a", "|", out));
    EXPECT_EQ(out, Pieces{"a"});
    EXPECT_TRUE(StringUtl::split("|", "|", out));
    EXPECT_EQ(out, (Pieces{"", ""}));
    EXPECT_TRUE(StringUtl::split("a::b:c", "::", out));
    EXPECT_EQ(out, (Pieces{"a", "b:c"}));
}

TEST(SplitTest, EmptyTextGivesNoPieceAndEmptySeparatorFails) {
    Pieces out{"old"};
    EXPECT_TRUE(StringUtl::split("", "|", out));
    EXPECT_TRUE(out.empty());
    EXPECT_FALSE(StringUtl::split("a", "", out));
    EXPECT_TRUE(out.empty());
}

TEST(NumberTest, IntegersReadLikeTheSystems) {
    EXPECT_EQ(StringUtl::ToInt("42"), 42);
    EXPECT_EQ(StringUtl::ToInt(" \t\n\v\f\r+7x"), 7);
    EXPECT_EQ(StringUtl::ToInt("-12.9"), -12);
    for (const char* text : {"", "x", "-", "+-1", "- 1", "nan", "inf"}) {
        EXPECT_EQ(StringUtl::ToInt(text), 0) << text;
    }
    EXPECT_EQ(StringUtl::ToInt("0x10"), 0);
    EXPECT_EQ(StringUtl::ToInt("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(StringUtl::ToInt("2147483648"), std::numeric_limits<int>::max());
    EXPECT_EQ(StringUtl::ToInt("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(StringUtl::ToInt("-99999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(StringUtl::ToLong("4294967296"), 4294967296LL);
    EXPECT_EQ(StringUtl::ToLong("-99999999999999999999"), std::numeric_limits<long long>::min());
}

TEST(NumberTest, RealsReadLikeTheSystems) {
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("12.5"), 12.5);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble(" +1.5e2kn"), 150);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("-.5"), -0.5);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("5."), 5);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("1e"), 1);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("1,5"), 1);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("0x1p3"), 0);
    for (const char* text : {"", ".", "-", "e5", "nan", "inf", "-inf", "infinity", "+-1", "--1"}) {
        EXPECT_DOUBLE_EQ(StringUtl::ToDouble(text), 0) << text;
    }
}

TEST(NumberTest, RealsOutOfRangeAreClamped) {
    constexpr double kMost = std::numeric_limits<double>::max();
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("1e400"), kMost);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("-1e400"), -kMost);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("1e-400"), 0);
    EXPECT_EQ(StringUtl::ToDouble("4e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(NumberTest, IntToStringPrintsDecimal) {
    EXPECT_EQ(StringUtl::IntToString(0), "0");
    EXPECT_EQ(StringUtl::IntToString(-1234567), "-1234567");
    EXPECT_EQ(StringUtl::IntToString(std::numeric_limits<long long>::min()), "-9223372036854775808");
}

TEST(NumericalFormatTest, GroupsThousands) {
    EXPECT_EQ(StringUtl::NumericalFormat(1234567.891, ",", ".", 2), "1,234,567.89");
    EXPECT_EQ(StringUtl::NumericalFormat(-1234.5, ".", ",", 1), "-1.234,5");
    EXPECT_EQ(StringUtl::NumericalFormat(999.999, ",", ".", 2), "1,000.00");
    EXPECT_EQ(StringUtl::NumericalFormat(123, ",", ".", 0), "123");
    EXPECT_EQ(StringUtl::NumericalFormat(-123, ",", ".", 0), "-123");
    EXPECT_EQ(StringUtl::NumericalFormat(1000, "", ".", -3), "1000");
    EXPECT_EQ(StringUtl::NumericalFormat(std::nan(""), ",", ".", 2), "nan");
}

TEST(GuidTest, IsOfTheUsualFormAndNew) {
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<std::string> seen;
    for (int i = 0; i < 100; ++i) {
        const std::string id = StringUtl::GenGUID();
        EXPECT_TRUE(std::regex_match(id, form)) << id;
        seen.insert(id);
    }
    EXPECT_EQ(seen.size(), 100U);
}

TEST(StringCopyTest, EndsWithNulAndTellsACut) {
    char out[4] = {'x', 'x', 'x', 'x'};
    EXPECT_TRUE(StringUtl::StringCopy(out, sizeof out, "abc"));
    EXPECT_STREQ(out, "abc");
    EXPECT_FALSE(StringUtl::StringCopy(out, sizeof out, "wxyz"));
    EXPECT_STREQ(out, "wxy");
    EXPECT_FALSE(StringUtl::StringCopy(out, 0, "q"));
    EXPECT_FALSE(StringUtl::StringCopy(nullptr, 4, "q"));
    EXPECT_STREQ(out, "wxy");
}

TEST(WidthTest, UnitsBelow128CountOneOthersTwo) {
    EXPECT_EQ(StringUtl::Width(std::string("abc")), 3);
    EXPECT_EQ(StringUtl::Width(std::string("\x7f\xc2\x80")), 3);
    EXPECT_EQ(StringUtl::Width(std::u16string(u"\u4e2d\u6587x")), 5);
    EXPECT_EQ(StringUtl::Width(std::u16string(u"\U0001F600")), 4);
    EXPECT_EQ(StringUtl::Width(std::string()), 0);
}

TEST(SpaceTest, IsTheUnicodeKind) {
    for (const char32_t c :
         {U' ', U'\t', U'\n', U'\u0085', U'\u00a0', U'\u2003', U'\u2028', U'\u202f', U'\u3000'}) {
        EXPECT_TRUE(StringUtl::IsSpace(c)) << static_cast<unsigned>(c);
    }
    for (const char32_t c : {U'a', U'\0', U'\u200b', U'\ufeff', U'\u4e2d'}) {
        EXPECT_FALSE(StringUtl::IsSpace(c)) << static_cast<unsigned>(c);
    }
}

TEST(SpaceTest, TrimsEnds) {
    EXPECT_EQ(StringUtl::Trim(u"\u3000 a b\u00a0\n"), u"a b");
    EXPECT_EQ(StringUtl::TrimLeft(u"\u3000 a b\u00a0"), u"a b\u00a0");
    EXPECT_EQ(StringUtl::Trim(u" \t "), u"");
    EXPECT_EQ(StringUtl::Trim(u""), u"");
    EXPECT_EQ(StringUtl::Trim("\u3000 \u6d77 b\r\n"), "\u6d77 b");
    EXPECT_EQ(StringUtl::Trim(" \t "), "");
}

/// Streams print a decimal comma and grouped thousands.
class CommaPunctuation : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/// Sets a decimal comma for streams, and for the C functions too when the machine has such a locale.
class CommaLocale {
  public:
    CommaLocale() : before_(std::setlocale(LC_ALL, nullptr)), streamsBefore_() {
        std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) {
                return;
            }
        }
    }
    ~CommaLocale() {
        std::locale::global(streamsBefore_);
        std::setlocale(LC_ALL, before_.c_str());
    }

  private:
    std::string before_;
    std::locale streamsBefore_;
};

TEST(FormatTest, PrintsWithAPointInAnyLocale) {
    const CommaLocale comma;
    EXPECT_EQ(StringUtl::Format("%.2f|%d|%s", 1.5, -3, "x"), "1.50|-3|x");
    EXPECT_EQ(StringUtl::NumericalFormat(1.5, ",", ".", 1), "1.5");
    EXPECT_EQ(StringUtl::NumericalFormat(1234.5, ",", ".", 1), "1,234.5");
    EXPECT_EQ(StringUtl::IntToString(1234567), "1234567");
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("1.5"), 1.5);
    EXPECT_DOUBLE_EQ(StringUtl::ToDouble("1.5e400"), std::numeric_limits<double>::max());
}

TEST(FormatTest, LengthIsNotLimited) {
    const std::string text(100'000, 'a');
    EXPECT_EQ(StringUtl::Format("%s-%s", text.c_str(), text.c_str()), text + "-" + text);
    EXPECT_EQ(StringUtl::Format("%s", ""), "");
}

TEST(BufferTest, FormattedTextCountsItsNul) {
    CAutoBuffer buffer(4);
    EXPECT_EQ(buffer.size(), 0U);
    CBlockBuffer::format0(buffer, "{vi:\"%s\",n:%d}", "1000007", 3);
    EXPECT_EQ(buffer.size(), 19U);
    EXPECT_EQ(std::string(buffer.begin(), buffer.end()), std::string("{vi:\"1000007\",n:3}\0", 19));
    CBlockBuffer::format0(buffer, "%.1f", 2.5);
    EXPECT_STREQ(buffer.begin(), "2.5");
    EXPECT_EQ(buffer.size(), 4U);
    CBlockBuffer::format0(buffer, "%s", "");
    EXPECT_EQ(buffer.size(), 1U);
}

TEST(BufferTest, AppendsAndClears) {
    CAutoBuffer buffer(0);
    buffer.append("ab\0c", 4);
    buffer.append("d", 1);
    EXPECT_EQ(std::string(buffer.begin(), buffer.end()), std::string("ab\0cd", 5));
    buffer.clear();
    EXPECT_EQ(buffer.size(), 0U);
}

}  // namespace
}  // namespace Tarvik::Util
