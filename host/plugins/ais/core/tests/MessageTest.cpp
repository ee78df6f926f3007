// SPDX-License-Identifier: MIT
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/ais/core/Decoder.h"
#include "host/plugins/ais/core/SentenceWriter.h"

namespace Tarvik::Ais {

namespace {

/// The one message of these lines.
std::optional<Message> Decoded(const std::vector<std::string>& lines) {
    std::optional<Message> last;
    Decoder decoder([&last](const Message& message) { last = message; });
    for (const std::string& line : lines) {
        decoder.TakeLine(line, 0);
    }
    return last;
}

TEST(MessageTest, ClassAReportIsDecoded) {
    const auto message = Decoded({"!AIVDM,1,1,,A,15RTgt0PAso;90TKcjM8h6g208CQ,0*4A"});
    ASSERT_TRUE(message);
    EXPECT_EQ(message->type, 1);
    EXPECT_EQ(message->mmsi, 371798000U);
    EXPECT_NEAR(message->movement.longitude, -123.395383333, 1e-8);
    EXPECT_NEAR(message->movement.latitude, 48.381633333, 1e-8);
    EXPECT_DOUBLE_EQ(message->movement.speed, 12.3);
    EXPECT_DOUBLE_EQ(message->movement.course, 224);
    EXPECT_EQ(message->movement.heading, 215);
    EXPECT_EQ(message->movement.second, 33);
    EXPECT_EQ(message->movement.status, 0);
}

TEST(MessageTest, VoyageDataIsDecoded) {
    const auto message =
        Decoded({"!AIVDM,2,1,1,A,55?MbV02;H;s<HtKR20EHE:0@T4@Dn2222222216L961O5Gf0NSQEp6ClRp8,0*1C",
                 "!AIVDM,2,2,1,A,88888888880,2*25"});
    ASSERT_TRUE(message);
    EXPECT_EQ(message->mmsi, 351759000U);
    const Particulars& told = message->particulars;
    EXPECT_EQ(told.imo, 9134270U);
    EXPECT_EQ(told.callSign, "3FOF8");
    EXPECT_EQ(told.name, "EVER DIADEM");
    EXPECT_EQ(told.shipType, 70);
    EXPECT_EQ(told.toBow + told.toStern, 295);
    EXPECT_EQ(told.toPort, 1);
    EXPECT_EQ(told.toStarboard, 31);
    EXPECT_DOUBLE_EQ(told.draught, 12.2);
    EXPECT_EQ(told.destination, "NEW YORK");
    EXPECT_EQ(told.etaMonth, 5);
    EXPECT_EQ(told.etaDay, 15);
    EXPECT_EQ(told.etaHour, 14);
    EXPECT_FALSE(message->moves);
}

TEST(MessageTest, NamesAreSentInTheLettersThatAisHas) {
    const auto message =
        Decoded(Sentences(VoyageData(123456789, "Amber Tide-2 {z}é", "d5at1", "Oslo_[1]"), 1));
    ASSERT_TRUE(message);
    EXPECT_EQ(message->particulars.name, "AMBER TIDE-2 ?Z???");
    EXPECT_EQ(message->particulars.callSign, "D5AT1");
    EXPECT_EQ(message->particulars.destination, "OSLO_[1]");
}

TEST(MessageTest, StaticPartsTellNameAndKindApart) {
    const auto name = Decoded({"!AIVDM,1,1,,A,H42O55i18tMET00000000000000,2*6D"});
    ASSERT_TRUE(name);
    EXPECT_TRUE(name->tellsName);
    EXPECT_FALSE(name->tellsKind);
    EXPECT_EQ(name->particulars.name, "PROGUY");
    const auto kind = Decoded({"!AIVDM,1,1,,A,H42O55lti4hhhilD3nink000?050,0*40"});
    ASSERT_TRUE(kind);
    EXPECT_FALSE(kind->tellsName);
    EXPECT_EQ(kind->particulars.callSign, "TC6163");
    EXPECT_EQ(kind->particulars.toStern, 15);
}

TEST(MessageTest, TenderTellsNoSize) {
    BitWriter bits;
    bits.Number(24, 6)
        .Number(0, 2)
        .Number(981234567, 30)
        .Number(1, 2)
        .Number(36, 8)
        .Text("ABC", 7)
        .Text("CALL", 7);
    bits.Number(371798000, 30).Number(0, 6);
    const auto message = Decoded(Sentences(bits));
    ASSERT_TRUE(message);
    EXPECT_TRUE(message->tellsKind);
    EXPECT_FALSE(message->tellsSizeOfShip);
}

TEST(MessageTest, NotAvailableValuesAreLeftOut) {
    RawMovement raw{1, 123456789};
    raw.longitude = 181 * 600000;
    raw.latitude = 91 * 600000;
    raw.speed = 1023;
    raw.course = 3600;
    raw.heading = 511;
    raw.second = 60;
    for (const BitWriter& bits : {ClassA(raw), ClassB(raw)}) {
        const auto message = Decoded(Sentences(bits));
        ASSERT_TRUE(message);
        EXPECT_FALSE(message->movement.hasPlace);
        EXPECT_EQ(message->movement.speed, -1);
        EXPECT_EQ(message->movement.course, -1);
        EXPECT_EQ(message->movement.heading, -1);
        EXPECT_EQ(message->movement.second, -1);
    }
    RawMovement coarse{27, 123456789};
    coarse.longitude = 181 * 600;
    coarse.latitude = 91 * 600;
    coarse.speed = 63;
    coarse.course = 511;
    const auto message = Decoded(Sentences(LongRange(coarse)));
    ASSERT_TRUE(message);
    EXPECT_FALSE(message->movement.hasPlace);
    EXPECT_EQ(message->movement.speed, -1);
    EXPECT_EQ(message->movement.course, -1);
}

TEST(MessageTest, PlacesReachTheDateLineAndThePoles) {
    for (const int sign : {-1, 1}) {
        RawMovement raw{3, 123456789};
        raw.longitude = sign * 180 * 600000;
        raw.latitude = sign * 90 * 600000;
        const auto message = Decoded(Sentences(ClassA(raw)));
        ASSERT_TRUE(message && message->movement.hasPlace);
        EXPECT_DOUBLE_EQ(message->movement.longitude, sign * 180.0);
        EXPECT_DOUBLE_EQ(message->movement.latitude, sign * 90.0);
    }
}

TEST(MessageTest, ShortMessagesAreRefused) {
    struct Row {
        int type;
        int bits;
        Cause cause;
    };
    for (const Row& row :
         {Row{1, 167, Cause::TooShort}, Row{1, 168, Cause::Message}, Row{5, 419, Cause::TooShort},
          Row{5, 420, Cause::Message}, Row{18, 167, Cause::TooShort}, Row{19, 311, Cause::TooShort},
          Row{19, 312, Cause::Message}, Row{24, 159, Cause::TooShort}, Row{24, 160, Cause::Message},
          Row{27, 94, Cause::TooShort}, Row{27, 95, Cause::Message}, Row{4, 168, Cause::OtherType}}) {
        BitWriter writer;
        writer.Number(row.type, 6).Number(0, 2).Number(123456789, 30);
        for (int bit = 38; bit < row.bits; ++bit) {
            writer.Number(0, 1);
        }
        int fill = 0;
        SixBits bits;
        const std::string payload = writer.Armoured(fill);
        ASSERT_TRUE(bits.Append(payload, static_cast<unsigned>(fill)));
        Message message;
        EXPECT_EQ(DecodeMessage(bits, message), row.cause) << row.type << " of " << row.bits;
    }
}

TEST(MessageTest, VesselNumberMustBeOne) {
    EXPECT_FALSE(Decoded(Sentences(ClassA({1, 0}))));
    EXPECT_FALSE(Decoded(Sentences(ClassA({1, 1'000'000'000}))));
    EXPECT_TRUE(Decoded(Sentences(ClassA({1, 999'999'999}))));
}

}  // namespace
}  // namespace Tarvik::Ais
