// SPDX-License-Identifier: MIT
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/util/TypedPosition.h>

namespace Tarvik::Util {

namespace {

constexpr double kNear = 1e-9;

struct Typed {
    const char* text;
    Axis axis;
    double degrees;
};

class TypedDegrees : public testing::TestWithParam<Typed> {};

TEST_P(TypedDegrees, AreRead) {
    const auto degrees = ReadTypedDegrees(GetParam().text, GetParam().axis);
    ASSERT_TRUE(degrees.has_value()) << GetParam().text;
    EXPECT_NEAR(*degrees, GetParam().degrees, kNear) << GetParam().text;
}

constexpr Axis kLat = Axis::Latitude;
constexpr Axis kLon = Axis::Longitude;
constexpr double kRotterdam = 51 + 54.5 / 60;

INSTANTIATE_TEST_SUITE_P(
    Forms, TypedDegrees,
    testing::Values(
        Typed{"51.9", kLat, 51.9}, Typed{"51,9", kLat, 51.9}, Typed{"-0.5", kLat, -0.5},
        Typed{"+0.5", kLon, 0.5}, Typed{"\u22120.5", kLat, -0.5}, Typed{"51° 54.5' N", kLat, kRotterdam},
        Typed{"51°54.5'N", kLat, kRotterdam}, Typed{"51 54.5N", kLat, kRotterdam},
        Typed{"51 54.5 n", kLat, kRotterdam}, Typed{"51 54,5N", kLat, kRotterdam},
        Typed{"N 51 54.5", kLat, kRotterdam}, Typed{"N51°54.5'", kLat, kRotterdam},
        Typed{"N51-54.5", kLat, kRotterdam}, Typed{"51-54.5N", kLat, kRotterdam},
        Typed{"51:54.5N", kLat, kRotterdam}, Typed{"5154.5N", kLat, kRotterdam},
        Typed{"5154,5N", kLat, kRotterdam}, Typed{"51°54'30\"N", kLat, kRotterdam},
        Typed{"51 54 30 N", kLat, kRotterdam}, Typed{"51-54-30N", kLat, kRotterdam},
        Typed{"515430N", kLat, kRotterdam}, Typed{"515430.0N", kLat, kRotterdam},
        Typed{"51º54′30″N", kLat, kRotterdam}, Typed{"51° 54’ 30” N", kLat, kRotterdam},
        Typed{"51 deg 54 min 30 sec N", kLat, kRotterdam},
        Typed{"51 degrees 54.5 minutes North", kLat, kRotterdam},
        Typed{"51\u00A054.5\u00A0N", kLat, kRotterdam}, Typed{"北纬51度54分30秒", kLat, kRotterdam},
        Typed{"51 54.5 S", kLat, -kRotterdam}, Typed{"S51.5", kLat, -51.5},
        Typed{"-51 54.5", kLat, -kRotterdam}, Typed{"0 30 S", kLat, -0.5}, Typed{"-0 30", kLat, -0.5},
        Typed{"0S", kLat, 0}, Typed{"90N", kLat, 90}, Typed{"0 59.999N", kLat, 59.999 / 60},
        Typed{"954.5N", kLat, 9 + 54.5 / 60}, Typed{"004 29.0E", kLon, 4 + 29.0 / 60},
        Typed{"4°29'E", kLon, 4 + 29.0 / 60}, Typed{"00429.0E", kLon, 4 + 29.0 / 60},
        Typed{"0429.0E", kLon, 4 + 29.0 / 60}, Typed{"429.0E", kLon, 4 + 29.0 / 60},
        Typed{"0042900E", kLon, 4 + 29.0 / 60}, Typed{"12530W", kLon, -125.5},
        Typed{"125 30 W", kLon, -125.5}, Typed{"179.9999W", kLon, -179.9999}, Typed{"180E", kLon, 180},
        Typed{"45E", kLon, 45}, Typed{"E 045", kLon, 45}, Typed{"120E", kLon, 120}));

class NoDegrees : public testing::TestWithParam<Typed> {};

TEST_P(NoDegrees, AreRefused) {
    EXPECT_FALSE(ReadTypedDegrees(GetParam().text, GetParam().axis).has_value()) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Forms, NoDegrees,
    testing::Values(Typed{"", kLat, 0}, Typed{"   ", kLat, 0}, Typed{"N", kLat, 0}, Typed{"-", kLat, 0},
                    Typed{".", kLat, 0}, Typed{"abc", kLat, 0}, Typed{"1e3", kLat, 0},
                    Typed{"51 60 N", kLat, 0}, Typed{"51 54 60 N", kLat, 0}, Typed{"51.5 30 N", kLat, 0},
                    Typed{"51 54.5 30 N", kLat, 0}, Typed{"51 54 30 1 N", kLat, 0}, Typed{"N51S", kLat, 0},
                    Typed{"51 NN", kLat, 0}, Typed{"51E", kLat, 0}, Typed{"51N", kLon, 0},
                    Typed{"-51S", kLat, 0}, Typed{"90.1", kLat, 0}, Typed{"90 00.1N", kLat, 0},
                    Typed{"180.1", kLon, 0}, Typed{"1.2.3", kLat, 0}, Typed{"51 -4", kLat, 0},
                    Typed{"51--4", kLat, 0}, Typed{"9160N", kLat, 0}, Typed{"12345678E", kLon, 0},
                    Typed{"51 54.5N 4 29E", kLat, 0}, Typed{"51x", kLat, 0}));

TEST(TypedDegrees, ALongTextIsNone) {
    EXPECT_FALSE(ReadTypedDegrees(std::string(100000, '1'), kLat).has_value());
    EXPECT_FALSE(ReadTypedPosition(std::string(100000, ' ')).has_value());
}

struct TypedPair {
    const char* text;
    double y;
    double x;
};

class TypedPairs : public testing::TestWithParam<TypedPair> {};

TEST_P(TypedPairs, AreRead) {
    const auto position = ReadTypedPosition(GetParam().text);
    ASSERT_TRUE(position.has_value()) << GetParam().text;
    EXPECT_NEAR(position->y, GetParam().y, kNear) << GetParam().text;
    EXPECT_NEAR(position->x, GetParam().x, kNear) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Forms, TypedPairs,
    testing::Values(
        TypedPair{"51° 54.5' N 004° 30.0' E", kRotterdam, 4.5}, TypedPair{"51 54.5N, 4 30E", kRotterdam, 4.5},
        TypedPair{"5154.5N 00430.0E", kRotterdam, 4.5}, TypedPair{"5154.5N/00430.0E", kRotterdam, 4.5},
        TypedPair{"N51 54.5 E4 30", kRotterdam, 4.5}, TypedPair{"N51°54.5' W004°30'", kRotterdam, -4.5},
        TypedPair{"4 30E 51 54.5N", kRotterdam, 4.5}, TypedPair{"E4.5;N51.5", 51.5, 4.5},
        TypedPair{"51.5, -4.5", 51.5, -4.5}, TypedPair{"51.5 4.5", 51.5, 4.5},
        TypedPair{"51,5 4,5", 51.5, 4.5}, TypedPair{"51.5;4.5", 51.5, 4.5}, TypedPair{"51.5\t4.5", 51.5, 4.5},
        TypedPair{"51 54.5; 4 30", kRotterdam, 4.5}, TypedPair{"-51.5 -4.5", -51.5, -4.5},
        TypedPair{"51°54'30\"N 4°30'0\"E", kRotterdam, 4.5}));

TEST(TypedPairs, WhatIsNoPairIsRefused) {
    for (const char* text : {"", "51.5", "51.5 N", "51N 52N", "4E 5E", "51N 4", "51 54 4 30", "91 4",
                             "51, 181", "a, b", "51N 4E 5E", ";", "51;4;3"}) {
        EXPECT_FALSE(ReadTypedPosition(text).has_value()) << text;
    }
}

TEST(TypedDegrees, AreToldWithDegreesAndMinutes) {
    EXPECT_EQ(DegreesText(kRotterdam, kLat), "51° 54.50' N");
    EXPECT_EQ(DegreesText(-4.5, kLon), "004° 30.00' W");
    EXPECT_EQ(DegreesText(0, kLat), "00° 00.00' N");
    EXPECT_EQ(SecondsText(kRotterdam, kLat), "51°54'30\"N");
    EXPECT_EQ(SecondsText(-4.5, kLon), "004°30'00\"W");
    EXPECT_EQ(DegreesText(-0.5, kLat), "00° 30.00' S");
    EXPECT_EQ(DegreesText(9.99999999, kLat), "10° 00.00' N") << "no sixty minutes";
    for (double degrees = -89.75; degrees < 90; degrees += 3.25) {
        const auto again = ReadTypedDegrees(DegreesText(degrees, kLat), kLat);
        ASSERT_TRUE(again.has_value());
        EXPECT_NEAR(*again, degrees, 1e-4);
    }
}

}  // namespace

}  // namespace Tarvik::Util
