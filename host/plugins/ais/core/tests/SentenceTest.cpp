// SPDX-License-Identifier: MIT
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "host/plugins/ais/core/Sentence.h"
#include "host/plugins/ais/core/SentenceWriter.h"

namespace Tarvik::Ais {

namespace {

const std::string kGood = "!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5C";

TEST(SentenceTest, FieldsAreRead) {
    Sentence sentence;
    const std::string line = Checked("BSVDO,3,2,7,A,55P5,4");
    ASSERT_EQ(ParseSentence(line, sentence), Cause::Message);
    EXPECT_TRUE(sentence.own);
    EXPECT_EQ(sentence.parts, 3);
    EXPECT_EQ(sentence.part, 2);
    EXPECT_EQ(sentence.sequence, 7);
    EXPECT_EQ(sentence.channel, 'A');
    EXPECT_EQ(sentence.payload, "55P5");
    EXPECT_EQ(sentence.fillBits, 4);
}

TEST(SentenceTest, TagBlockGivesTheTime) {
    const auto tagged = [](const std::string& fields) {
        return "\\" + Checked(fields).substr(1) + "\\" + kGood;
    };
    Sentence sentence;
    ASSERT_EQ(ParseSentence(tagged("s:station,c:1600000000"), sentence), Cause::Message);
    EXPECT_EQ(sentence.tagTime, 1600000000);
    ASSERT_EQ(ParseSentence(tagged("c:1600000000123,g:1-2-99"), sentence), Cause::Message);
    EXPECT_EQ(sentence.tagTime, 1600000000) << "milliseconds";
    ASSERT_EQ(ParseSentence(tagged("c:16x"), sentence), Cause::Message);
    EXPECT_EQ(sentence.tagTime, 0);
    ASSERT_EQ(ParseSentence(kGood, sentence), Cause::Message);
    EXPECT_EQ(sentence.tagTime, 0) << "none is left over";
    EXPECT_EQ(ParseSentence("\\c:1600000000*00\\" + kGood, sentence), Cause::BadChecksum);
    EXPECT_EQ(ParseSentence("\\c:1600000000*00", sentence), Cause::Cut);
}

struct Malformed {
    const char* name;
    std::string line;
    Cause cause;
};

std::ostream& operator<<(std::ostream& out, const Malformed& row) {
    return out << row.name;
}

class MalformedTest : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedTest, IsRefusedByItsCause) {
    Sentence sentence;
    EXPECT_EQ(ParseSentence(GetParam().line, sentence), GetParam().cause);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, MalformedTest,
    testing::Values(Malformed{"another sentence", "$GPGGA,1,2*00", Cause::NotAis},
                    Malformed{"no exclamation mark", kGood.substr(1), Cause::NotAis},
                    Malformed{"small letters", "!aivdm,1,1,,B,1,0*00", Cause::NotAis},
                    Malformed{"head alone", "!AIVDM,", Cause::NotAis},
                    Malformed{"cut before the star", kGood.substr(0, kGood.size() - 3), Cause::Cut},
                    Malformed{"cut in the checksum", kGood.substr(0, kGood.size() - 1), Cause::Cut},
                    Malformed{"other checksum", kGood.substr(0, kGood.size() - 1) + "D", Cause::BadChecksum},
                    Malformed{"no digits", kGood.substr(0, kGood.size() - 2) + "xy", Cause::BadChecksum},
                    Malformed{"a flipped payload", "!AIVDM,1,1,,B,277KQJ5000G?tO`K>RA1wUbN0TKH,0*5C",
                              Cause::BadChecksum},
                    Malformed{"no parts", Checked("AIVDM,0,0,,B,1,0"), Cause::BadFields},
                    Malformed{"a part too many", Checked("AIVDM,1,2,,B,1,0"), Cause::BadFields},
                    Malformed{"two digits of parts", Checked("AIVDM,12,1,,B,1,0"), Cause::BadFields},
                    Malformed{"sequence that is none", Checked("AIVDM,1,1,x,B,1,0"), Cause::BadFields},
                    Malformed{"long channel", Checked("AIVDM,1,1,,AB,1,0"), Cause::BadFields},
                    Malformed{"no fill bits", Checked("AIVDM,1,1,,B,1"), Cause::BadFields},
                    Malformed{"fill bits that are none", Checked("AIVDM,1,1,,B,1,x"), Cause::BadFields},
                    Malformed{"field too many", Checked("AIVDM,1,1,,B,1,0,7"), Cause::BadFields},
                    Malformed{"no fields", Checked("AIVDM,"), Cause::BadFields},
                    Malformed{"over-long", Checked("AIVDM,1,1,,B," + std::string(kLongestLine, '1') + ",0"),
                              Cause::TooLong}));

TEST(SentenceTest, WordsBehindTheChecksumAndBlanksDoNotCount) {
    Sentence sentence;
    EXPECT_EQ(ParseSentence(kGood + ",b003660465,1600000000", sentence), Cause::Message);
    EXPECT_EQ(ParseSentence(kGood + "   ", sentence), Cause::Message);
    EXPECT_EQ(ParseSentence("!AIVDM,1,1,,B,177KQJ5000G?tO`K>RA1wUbN0TKH,0*5c", sentence), Cause::Message);
}

}  // namespace
}  // namespace Tarvik::Ais
