// SPDX-License-Identifier: MIT
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/ais/core/Decoder.h"
#include "host/plugins/ais/core/SentenceWriter.h"

namespace Tarvik::Ais {

namespace {

const std::string kGood = "!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C";

class DecoderTest : public testing::Test {
  protected:
    std::vector<std::string> names;
    int messages = 0;
    Decoder decoder{[this](const Message& message) {
        ++messages;
        if (message.tellsName) {
            names.push_back(message.particulars.name);
        }
    }};
};

std::vector<std::string> Ship(const std::string& name, int sequence, char channel) {
    return Sentences(VoyageData(123456789, name, "CALL", "PORT"), sequence, channel);
}

TEST_F(DecoderTest, InterleavedMessagesComeWhole) {
    const auto first = Ship("FIRST", 3, 'A');
    const auto second = Ship("SECOND", 4, 'A');
    const auto third = Ship("THIRD", 3, 'B');
    for (const std::string& line : {first[0], second[0], third[0], kGood, third[1], first[1], second[1]}) {
        decoder.TakeLine(line, 0);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"THIRD", "FIRST", "SECOND"}));
    EXPECT_EQ(messages, 4);
    EXPECT_EQ(decoder.Count(Cause::Part), 3U);
    EXPECT_EQ(decoder.Count(Cause::LostPart), 0U);
}

TEST_F(DecoderTest, PartsMayComeInAnyOrder) {
    const auto ship = Ship("TURNED", 1, 'A');
    decoder.TakeLine(ship[1], 0);
    decoder.TakeLine(ship[0], 0);
    EXPECT_EQ(names, (std::vector<std::string>{"TURNED"}));
}

TEST_F(DecoderTest, PartsOfTwoShipsAreNotJoined) {
    const auto first = Ship("FIRST", 5, 'A');
    const auto second = Ship("SECOND", 5, 'A');
    EXPECT_EQ(decoder.TakeLine(first[0], 0), Cause::Part);
    EXPECT_EQ(decoder.TakeLine(second[0], 0), Cause::LostPart)
        << "the first part comes again: its message is dropped";
    EXPECT_EQ(decoder.TakeLine(second[1], 0), Cause::Message);
    EXPECT_EQ(names, (std::vector<std::string>{"SECOND"}));
}

TEST_F(DecoderTest, PartThatComesTooLateBeginsAnew) {
    const auto ship = Ship("LATE", 5, 'A');
    decoder.TakeLine(ship[0], 1000);
    EXPECT_EQ(decoder.TakeLine(ship[1], 1001 + PartStore::kLongestWait), Cause::LostPart);
    EXPECT_TRUE(names.empty());
    decoder.TakeLine(ship[0], 1002 + PartStore::kLongestWait);
    EXPECT_EQ(names.size(), 1U);
}

TEST_F(DecoderTest, ChunksMayBeCutAnywhere) {
    std::string stream;
    for (const std::string& line : Ship("CUT", 2, 'B')) {
        stream += line + "\r\n";
    }
    stream += kGood + "\n";
    for (std::size_t cut = 0; cut <= stream.size(); ++cut) {
        messages = 0;
        decoder.Take(stream.substr(0, cut), 0);
        decoder.Take(stream.substr(cut), 0);
        EXPECT_EQ(messages, 2) << "cut at " << cut;
    }
}

TEST_F(DecoderTest, OverlongLineIsSkippedToItsEndAndCountedOnce) {
    for (int i = 0; i < 10000; ++i) {
        decoder.Take(std::string(100, '!'), 0);
    }
    decoder.Take("\n" + kGood + "\n", 0);
    EXPECT_EQ(decoder.Count(Cause::TooLong), 1U);
    EXPECT_EQ(messages, 1);
}

TEST_F(DecoderTest, EachLineCountsUnderItsCause) {
    decoder.Take("\r\n\n" + kGood + "\n", 0);
    decoder.Take("$GPGGA,1*00\n" + kGood.substr(0, 20) + "\n", 0);
    decoder.Take(kGood.substr(0, kGood.size() - 1) + "D\n", 0);
    decoder.Take(Checked("AIVDM,1,1,,B,17x,9") + "\n", 0);
    decoder.Take(Checked("AIVDM,1,1,,B,17X7,0") + "\n", 0);
    decoder.Take(Checked("AIVDM,1,1,,B,177K,0") + "\n", 0);
    decoder.Take("!AIVDM,1,1,,A,403OviQuMGCqWrRO9>E6fE700@GO,0*4D\n", 0);
    EXPECT_EQ(decoder.Count(Cause::Message), 1U);
    EXPECT_EQ(decoder.Count(Cause::NotAis), 1U);
    EXPECT_EQ(decoder.Count(Cause::Cut), 1U);
    EXPECT_EQ(decoder.Count(Cause::BadChecksum), 1U);
    EXPECT_EQ(decoder.Count(Cause::BadPayload), 2U) << "fill bits and a letter that is none";
    EXPECT_EQ(decoder.Count(Cause::TooShort), 1U);
    EXPECT_EQ(decoder.Count(Cause::OtherType), 1U);
}

TEST_F(DecoderTest, FillBitsBetweenPartsAreRefused) {
    auto ship = Ship("GAP", 2, 'B');
    std::string body = ship[0].substr(1, ship[0].rfind(',') - 1) + ",3";
    decoder.TakeLine(Checked(body), 0);
    EXPECT_EQ(decoder.TakeLine(ship[1], 0), Cause::BadPayload);
}

TEST_F(DecoderTest, RestartForgetsWhatWasCut) {
    const auto ship = Ship("OLD", 2, 'B');
    decoder.TakeLine(ship[0], 0);
    decoder.Take(kGood.substr(0, 10), 0);
    decoder.Restart();
    decoder.Take(kGood + "\n", 0);
    EXPECT_EQ(messages, 1);
    EXPECT_EQ(decoder.TakeLine(ship[1], 0), Cause::Part);
}

TEST_F(DecoderTest, GarbageNeverHarms) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string good = kGood + "\r\n" + Ship("X", 1, 'A')[0] + "\n" + Ship("X", 1, 'A')[1] + "\n";
    for (int round = 0; round < 20000; ++round) {
        std::string text = good;
        for (int change = 0; change < 3; ++change) {
            text[random() % text.size()] = static_cast<char>(random());
        }
        decoder.Take(text, round);
    }
    std::uint64_t lines = 0;
    for (std::size_t cause = 0; cause < kCauses; ++cause) {
        lines += decoder.Count(static_cast<Cause>(cause));
    }
    EXPECT_GE(lines, 40000U);
}

}  // namespace
}  // namespace Tarvik::Ais
