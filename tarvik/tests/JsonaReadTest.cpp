// SPDX-License-Identifier: MIT
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/util/Jsona.h>

namespace Tarvik::Util {

namespace {

Jsona Parsed(std::string_view text) {
    Jsona value;
    EXPECT_TRUE(value.parse(text)) << value.ErrorText() << " at " << value.ErrorOffset();
    return value;
}

TEST(JsonaReadTest, EmptyValueReadsAsDefaults) {
    const Jsona value;
    EXPECT_EQ(value.kind(), Jsona::Kind::None);
    EXPECT_EQ(value.size(), 0);
    EXPECT_FALSE(value.has("a"));
    EXPECT_EQ(value.getv("a", "d"), "d");
    EXPECT_EQ(value.getv("a", 7), 7);
    EXPECT_DOUBLE_EQ(value.getv("a", 7.5), 7.5);
    EXPECT_EQ(value.getv(0, "d"), "d");
    EXPECT_EQ(value.get("a").get(3).get("b").kind(), Jsona::Kind::None);
    EXPECT_EQ(value.text("d"), "d");
    EXPECT_EQ(value.integer(4), 4);
    EXPECT_EQ(value.key(0), "");
}

TEST(JsonaReadTest, KindsAreTold) {
    const Jsona value = Parsed(R"([null,false,true,1,1.0,"x",[],{}])");
    using Kind = Jsona::Kind;
    const Kind expected[] = {Kind::Null, Kind::False, Kind::True,  Kind::Integer,
                             Kind::Real, Kind::Text,  Kind::Array, Kind::Object};
    ASSERT_EQ(value.size(), 8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(value.get(i).kind(), expected[i]) << i;
    }
    EXPECT_EQ(value.get(8).kind(), Kind::None);
    EXPECT_EQ(value.get(-1).kind(), Kind::None);
}

TEST(JsonaReadTest, BareScalarHasSizeZero) {
    EXPECT_EQ(Parsed("12").size(), 0);
    EXPECT_EQ(Parsed("12").integer(0), 12);
    EXPECT_EQ(Parsed("\"abc\"").size(), 0);
    EXPECT_EQ(Parsed("\"abc\"").text(), "abc");
    EXPECT_EQ(Parsed("12").get(0).kind(), Jsona::Kind::None);
}

TEST(JsonaReadTest, GetvReadsOnlyItsOwnKind) {
    const Jsona value = Parsed(R"({t:"5",i:5,r:5.0,n:null,b:true,a:[1]})");
    EXPECT_EQ(value.getv("t", "d"), "5");
    EXPECT_EQ(value.getv("i", 9), 5);
    EXPECT_DOUBLE_EQ(value.getv("r", 9.5), 5.0);
    for (const char* key : {"i", "r", "n", "b", "a", "missing"}) {
        EXPECT_EQ(value.getv(key, "d"), "d") << key;
    }
    for (const char* key : {"t", "r", "n", "b", "a", "missing"}) {
        EXPECT_EQ(value.getv(key, 9), 9) << key;
    }
    for (const char* key : {"t", "i", "n", "b", "a", "missing"}) {
        EXPECT_DOUBLE_EQ(value.getv(key, 9.5), 9.5) << key;
    }
}

TEST(JsonaReadTest, IntegersFitThirtyTwoBits) {
    const Jsona value = Parsed("[2147483647,-2147483648,2147483648,-2147483649,99999999999999999999,-0]");
    EXPECT_EQ(value.getv(0, 1), std::numeric_limits<int>::max());
    EXPECT_EQ(value.getv(1, 1), std::numeric_limits<int>::min());
    EXPECT_EQ(value.getv(2, 1), 1);
    EXPECT_EQ(value.getv(3, 1), 1);
    EXPECT_EQ(value.getv(4, 1), 1);
    EXPECT_EQ(value.getv(5, 1), 0);
}

TEST(JsonaReadTest, RealsHaveAFractionOrExponent) {
    const Jsona value = Parsed("[1.25,2e3,-1E-2,1e999,-1e999,1e-999]");
    EXPECT_DOUBLE_EQ(value.getv(0, 0.0), 1.25);
    EXPECT_DOUBLE_EQ(value.getv(1, 0.0), 2000.0);
    EXPECT_DOUBLE_EQ(value.getv(2, 0.0), -0.01);
    EXPECT_DOUBLE_EQ(value.getv(3, 0.0), std::numeric_limits<double>::max());
    EXPECT_DOUBLE_EQ(value.getv(4, 0.0), -std::numeric_limits<double>::max());
    EXPECT_DOUBLE_EQ(value.getv(5, 1.0), 0.0);
}

TEST(JsonaReadTest, EscapesAreDecoded) {
    EXPECT_EQ(Parsed(R"("\"\\\/\b\f\n\r\t")").text(), "\"\\/\b\f\n\r\t");
    EXPECT_EQ(Parsed(R"("\u0041\u00e9\u4e2d\ud83d\ude00")").text(), "A\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80");
    EXPECT_EQ(Parsed(R"("a\u0000b")").text(), std::string("a\0b", 3));
    EXPECT_EQ(Parsed("\"line\r\nbreak\"").text(), "line\r\nbreak");
}

TEST(JsonaReadTest, MembersComeInOrderWithTheirKeys) {
    const Jsona value = Parsed(R"({z:1,"a\u0062":2,m:3})");
    ASSERT_EQ(value.size(), 3);
    EXPECT_EQ(value.key(0), "z");
    EXPECT_EQ(value.key(1), "ab");
    EXPECT_EQ(value.key(2), "m");
    EXPECT_EQ(value.key(3), "");
    EXPECT_EQ(value.getv(1, 0), 2);
    EXPECT_EQ(value.getv("ab", 0), 2);
    EXPECT_TRUE(value.has("m"));
    EXPECT_FALSE(value.has("mm"));
}

TEST(JsonaReadTest, LaterOfEqualKeysWins) {
    const Jsona value = Parsed(R"({a:1,b:2,"a":3,"\u0061":4})");
    ASSERT_EQ(value.size(), 2);
    EXPECT_EQ(value.key(0), "a");
    EXPECT_EQ(value.getv("a", 0), 4);
    EXPECT_EQ(value.getv("b", 0), 2);
}

TEST(JsonaReadTest, LargeObjectsAreFoundByKeyAndKeepTheirOrder) {
    std::string text = "{";
    for (int i = 0; i < 500; ++i) {
        text += "k" + std::to_string(i) + ":" + std::to_string(i) + ",";
    }
    text += "k7:1007,last:{k7:5}}";
    const Jsona value = Parsed(text);
    ASSERT_EQ(value.size(), 501);
    EXPECT_EQ(value.getv("k7", 0), 1007);
    EXPECT_EQ(value.getv(7, 0), 1007);
    for (int i = 8; i < 500; ++i) {
        ASSERT_EQ(value.getv("k" + std::to_string(i), -1), i);
        ASSERT_EQ(value.key(i), "k" + std::to_string(i));
    }
    EXPECT_EQ(value.get("last").getv("k7", 0), 5);
    EXPECT_FALSE(value.has("k500"));
    EXPECT_FALSE(value.has(""));
}

TEST(JsonaReadTest, NestedContainersKeepTheirChildrenApart) {
    const Jsona value = Parsed(R"([[1,[2,3]],{a:[{b:"x"},[]],c:[4]},5])");
    ASSERT_EQ(value.size(), 3);
    EXPECT_EQ(value.get(0).get(1).getv(1, 0), 3);
    EXPECT_EQ(value.get(1).get("a").get(0).getv("b", ""), "x");
    EXPECT_EQ(value.get(1).get("a").get(1).size(), 0);
    EXPECT_EQ(value.get(1).get(1).getv(0, 0), 4);
    EXPECT_EQ(value.getv(2, 0), 5);
}

TEST(JsonaReadTest, HandleKeepsItsDocumentAlive) {
    Jsona inner;
    {
        Jsona outer = Parsed(R"({a:{b:"kept"}})");
        inner = outer.get("a");
        ASSERT_TRUE(outer.parse("[]"));
    }
    EXPECT_EQ(inner.getv("b", ""), "kept");
}

TEST(JsonaReadTest, NullDefaultTextIsEmpty) {
    EXPECT_EQ(Parsed("{}").getv("a", static_cast<const char*>(nullptr)), "");
}

}  // namespace
}  // namespace Tarvik::Util
