// SPDX-License-Identifier: MIT
#include <set>

#include <gtest/gtest.h>

#include "host/server/api/Errors.h"
#include "host/server/api/JsonWriter.h"
#include "host/server/api/Numbers.h"

namespace Tarvik::Server {

namespace {

TEST(NumbersTest, IntegerIsTheWholeText) {
    EXPECT_EQ(ParseInteger("0", 0, 9), 0);
    EXPECT_EQ(ParseInteger("-5", -5, 9), -5);
    EXPECT_EQ(ParseInteger("007", 0, 9), 7);
    for (const char* text : {"", " 1", "1 ", "+1", "1.0", "0x1", "10", "-1", "99999999999", "1\n"}) {
        EXPECT_FALSE(ParseInteger(text, 0, 9)) << text;
    }
}

TEST(NumbersTest, DecimalIsTheWholeText) {
    EXPECT_EQ(ParseDecimal("18.520", 0, 100), 18.52);
    EXPECT_EQ(ParseDecimal("-0.0", 0, 100), 0.0);
    EXPECT_EQ(ParseDecimal(".5", 0, 100), 0.5);
    for (const char* text : {"", "1,5", "1e1", "inf", "nan", "-1", "100.1", "0x10", "1.5 ", "--1", "."}) {
        EXPECT_FALSE(ParseDecimal(text, 0, 100)) << text;
    }
}

TEST(NumbersTest, PrintedDecimalReadsBackEqual) {
    EXPECT_EQ(PrintDecimal(0, 3), "0.000");
    EXPECT_EQ(PrintDecimal(-0.0, 1), "0.0");
    EXPECT_EQ(PrintDecimal(120, 1), "120.0");
    EXPECT_EQ(PrintDecimal(18.5, 3), "18.500");
    EXPECT_EQ(PrintDecimal(117.78671, 1), "117.78671");
    EXPECT_EQ(PrintDecimal(1e9, 1), "1000000000.0");
    for (const double number : {0.1 + 0.2, 1.0 / 3, -179.9999999, 5e-324}) {
        EXPECT_EQ(ParseDecimal(PrintDecimal(number, 1), -1e9, 1e9), number);
    }
}

TEST(NumbersTest, TimeTextHasItsFormAndADateThatExists) {
    for (const char* text : {"2026-03-01 08:00:00", "2024-02-29 23:59:59", "0001-01-01 00:00:00"}) {
        EXPECT_TRUE(IsTimeText(text)) << text;
    }
    for (const char* text :
         {"", "2026-03-01", "2026-03-01 08:00", "2023-02-29 00:00:00", "2026-00-01 00:00:00",
          "2026-04-31 00:00:00", "2026-03-01 24:00:00", "2026-03-01 08:60:00", "2026-03-01 08:00:60",
          "2026-03-01T08:00:00", "2026-03-01 08:00:00 ", "+026-03-01 08:00:00"}) {
        EXPECT_FALSE(IsTimeText(text)) << text;
    }
}

TEST(JsonWriterTest, CommasStandBetweenAndEscapesWhereNeeded) {
    JsonWriter out;
    out.BeginObject().TextMember("a", "\"\\\n\r\t\x01/é").NumberMember("b", -7);
    out.Key("c").BeginArray().Integer(1).Fraction(2).BeginArray().EndArray().Text("x").EndArray();
    out.Key("d").BeginObject().EndObject().EndObject();
    EXPECT_EQ(out.Take(), R"({"a":"\"\\\n\r\t\u0001/é","b":"-7","c":[1,2.0,[],"x"],"d":{}})");
}

TEST(ErrorsTest, EveryFaultHasACodeAndEveryCodeATextOfItsOwn) {
    std::set<std::string_view> texts;
    for (int reason = 0; reason <= static_cast<int>(FaultReason::StorageFailed); ++reason) {
        const ErrorCode code = CodeOf(static_cast<FaultReason>(reason));
        EXPECT_NE(code, ErrorCode::Internal);
        EXPECT_TRUE(texts.insert(TextOf(code)).second) << TextOf(code);
    }
    EXPECT_EQ(CodeOf(FaultReason::UnknownObject), ErrorCode::UnknownObject);
    EXPECT_EQ(CodeOf(FaultReason::RemarkExists), ErrorCode::RemarkExists);
    EXPECT_EQ(TextOf(static_cast<ErrorCode>(9999)), "the server failed");
}

}  // namespace
}  // namespace Tarvik::Server
