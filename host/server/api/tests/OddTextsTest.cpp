// SPDX-License-Identifier: MIT
#include <tarvik/util/Jsona.h>

#include "host/server/api/RequestFields.h"
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

using OddTextsTest = ServiceTest;

/// Name of the first category of a load.
std::string LoadedName(const std::string& reply) {
    Util::Jsona root;
    EXPECT_TRUE(root.parse(reply)) << reply;
    return root.get(root.size() - 1).getv("cn", "");
}

TEST_F(OddTextsTest, NamesThatMeanNothingToTheFormatAreStoredExactly) {
    const std::string names[] = {
        "it's",
        "a/b|c#d",
        "100 %d %s %n",
        "'; DROP TABLE categories; --",
        "＂quoted＂ ＼ fullwidth ，：",
        "大西洋 – 上海",
        "ship \xF0\x9F\x9A\xA2 and \xF0\x9F\x91\xA9\xE2\x80\x8D\xE2\x9C\x88\xEF\xB8\x8F",
        "e\xCC\x81 is not \xC3\xA9",
        "\xEF\xBB\xBF mark first",
        " blanks around ",
        "line\nbreak\ttab\rreturn\x01\x7F",
        "{ci:1}[],",
        "\xE2\x80\xAE backwards",
    };
    for (const std::string& name : names) {
        EXPECT_EQ(Eid(Send(4, "{ci:\"\",cn:\"" + name + "\",type:0}")), 0) << name;
        EXPECT_EQ(LoadedName(Send(3, R"({ui:"ann"})")), name);
    }
}

TEST_F(OddTextsTest, EveryTextOfARequestIsStoredExactly) {
    const World world = MakeWorld();
    const std::string odd = "\xEF\xBC\x82\xE8\x88\xB9\xEF\xBC\x82 it's 100 %s; -- \xF0\x9F\x9A\xA2\x01";
    const std::string written =
        "\xEF\xBC\x82\xE8\x88\xB9\xEF\xBC\x82 it's 100 %s; -- \xF0\x9F\x9A\xA2\\u0001";
    const struct {
        int command;
        std::string text;
        int reading;
        std::string question;
        std::string member;
    } cases[] = {
        {4, R"({ci:")" + world.category + R"(",cn:")" + odd + R"(",type:"4"})", 3, R"({ui:"ann"})", "cn"},
        {5, R"({vi:")" + world.voyage + R"(",vn:")" + odd + R"(",type:"1"})", 3, R"({ui:"ann"})", "vn"},
        {5, R"({vi:")" + world.voyage + R"(",type:"5",vsi:")" + odd + R"(",vsn:"x",vsmsi:"1"})", 3,
         R"({ui:"ann"})", "vsi"},
        {5, R"({vi:")" + world.voyage + R"(",type:"5",vsi:"x",vsn:")" + odd + R"(",vsmsi:"1"})", 3,
         R"({ui:"ann"})", "vsn"},
        {11, R"([")" + world.voyage + R"(","0|)" + odd + R"(|x|L|1|0|0"])", 10,
         R"({vi:")" + world.voyage + R"("})", "ppi"},
        {11, R"([")" + world.voyage + R"(","0|x|)" + odd + R"(|L|1|0|0"])", 10,
         R"({vi:")" + world.voyage + R"("})", "ppn"},
        {9, R"([")" + world.book + R"(","0","0|)" + odd + R"(|1|2|GC|5|1|0"])", 7,
         R"({vi:")" + world.voyage + R"("})", "psn"},
        {9, R"([")" + world.book + R"(","0","0|x|1|2|)" + odd + R"(|5|1|0"])", 7,
         R"({vi:")" + world.voyage + R"("})", "psr"},
        {kRemark,
         R"({optype:"1",type:"2",objectid:")" + world.category + R"(",seq:"8",subject:")" + odd +
             R"(",body:""})",
         kRemark, R"({optype:"4",type:"2",objectid:")" + world.category + R"("})", "sub"},
        {kRemark,
         R"({optype:"3",type:"2",objectid:")" + world.category + R"(",seq:"8",subject:"",body:")" + odd +
             R"("})",
         kRemark, R"({optype:"4",type:"2",objectid:")" + world.category + R"("})", "body"},
        {kRemark,
         R"({optype:"1",type:"4",objectid:")" + world.voyage + odd + R"(",seq:"1",subject:"s",body:"b"})",
         kRemark, R"({optype:"4",type:"4",objectid:")" + world.voyage + odd + R"("})", ""},
    };
    for (const auto& [command, text, reading, question, member] : cases) {
        EXPECT_EQ(Send(command, text), R"({"eid":0})") << text;
        const std::string expected =
            member.empty() ? R"("sub":"s")" : '"' + member + R"(":")" + written + '"';
        EXPECT_NE(Send(reading, question).find(expected), std::string::npos)
            << text << " reads as " << Send(reading, question);
    }
}

TEST_F(OddTextsTest, EscapedNamesAreStoredAsWhatTheyMean) {
    EXPECT_EQ(Eid(Send(4, R"({ci:"",cn:"a \"b\" \\ \/ \u00e9 \ud83d\udea2 \n",type:0})")), 0);
    EXPECT_EQ(LoadedName(Send(3, R"({ui:"ann"})")), "a \"b\" \\ / \xC3\xA9 \xF0\x9F\x9A\xA2 \n");
}

TEST_F(OddTextsTest, RawQuotesAndBackslashesAreRefusedOrRead) {
    const std::string before = Everything();
    const std::string broken[] = {
        "a\"b", "\"", "a\\", "a\\qb", "\\u12", "\\ud83d alone", "x\",type:1,cn:\"y\"\""};
    for (const std::string& name : broken) {
        EXPECT_EQ(Eid(Send(4, "{ci:\"\",cn:\"" + name + "\",type:0}")), static_cast<int>(ErrorCode::BadJson))
            << name;
        EXPECT_EQ(Everything(), before);
    }
}

TEST_F(OddTextsTest, BytesThatAreNoTextAreRefused) {
    const std::string before = Everything();
    for (const char* name : {"\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE5\xA4", "\x80"}) {
        EXPECT_EQ(Eid(Send(4, std::string("{ci:\"\",cn:\"") + name + "\",type:0}")),
                  static_cast<int>(ErrorCode::BadJson));
    }
    EXPECT_EQ(Eid(Send(4, std::string("{ci:\"\",cn:\"a\0b\",type:0}", 23))),
              static_cast<int>(ErrorCode::BadText));
    EXPECT_EQ(Everything(), before);
}

TEST_F(OddTextsTest, LongestNameIsStoredWholeAndALongerOneNotAtAll) {
    const std::string longest(kMaxNameBytes, 'n');
    EXPECT_EQ(Eid(Send(4, "{ci:\"\",cn:\"" + longest + "\",type:0}")), 0);
    EXPECT_EQ(LoadedName(Send(3, R"({ui:"ann"})")), longest);
    const std::string before = Everything();
    const std::size_t sizes[] = {kMaxNameBytes + 1, 1024U * 1024U};
    for (const std::size_t size : sizes) {
        const std::string name(size, 'n');
        const std::pair<int, std::string> requests[] = {
            {4, "{ci:\"\",cn:\"" + name + "\",type:0}"},
            {4, "{ci:\"1000001\",cn:\"" + name + "\",type:\"4\"}"},
            {5, "{ci:\"1000001\",vi:\"\",vn:\"" + name + R"(",type:"0",vsi:"",vr:"0",va:"0"})"},
            {10, "{vi:\"" + name + "\"}"},
            {11, R"(["1000001","0|1|)" + name + R"(|L|1|0|0"])"},
            {9, R"(["1000001","0","0|)" + name + R"(|1|2|GC|5|1|0"])"},
        };
        for (const auto& [command, text] : requests) {
            EXPECT_EQ(Eid(Send(command, text)), static_cast<int>(ErrorCode::TextTooLong)) << command;
            EXPECT_EQ(Everything(), before) << command;
        }
    }
}

TEST_F(OddTextsTest, LongestRemarkIsStoredWholeAndALongerOneNotAtAll) {
    const World world = MakeWorld();
    const auto add = [&](const std::string& seq, const std::string& body) {
        return Eid(Send(kRemark, R"({optype:"1",type:"2",objectid:")" + world.category + R"(",seq:")" + seq +
                                     R"(",subject:"s",body:")" + body + R"("})"));
    };
    const std::string longest(kMaxBodyBytes, 'b');
    EXPECT_EQ(add("1", longest), 0);
    const std::string before = Everything();
    EXPECT_NE(before.find(longest), std::string::npos);
    EXPECT_EQ(add("2", longest + "b"), static_cast<int>(ErrorCode::TextTooLong));
    EXPECT_EQ(add("2", std::string(1024U * 1024U, 'b')), static_cast<int>(ErrorCode::TextTooLong));
    EXPECT_EQ(Everything(), before);
}

TEST_F(OddTextsTest, ReasonOfARefusalIsShortAndReadable) {
    const World world = MakeWorld();
    std::string row = "0|";
    for (int i = 0; i < 200; ++i) {
        row += "船";
    }
    const std::string reply = Send(9, "[\"" + world.book + "\",\"0\",\"" + row + "\"]");
    Util::Jsona status;
    ASSERT_TRUE(status.parse(reply)) << reply;
    EXPECT_EQ(status.getv("eid", 0), static_cast<int>(ErrorCode::BadRow));
    EXPECT_LT(reply.size(), 300U);
}

TEST_F(OddTextsTest, TooManyRowsAreRefused) {
    const World world = MakeWorld();
    const std::string before = Everything();
    std::string text = "[\"" + world.book + "\",\"0\"";
    for (int i = 0; i < 100000; ++i) {
        text += ",\"\"";
    }
    EXPECT_EQ(Eid(Send(9, text + "]")), static_cast<int>(ErrorCode::TooManyRows));
    EXPECT_EQ(Everything(), before);
}

TEST_F(OddTextsTest, DeepNestingIsRefused) {
    EXPECT_EQ(Eid(Send(9, std::string(100000, '['))), static_cast<int>(ErrorCode::BadJson));
    EXPECT_EQ(Eid(Send(3, "{ui:" + std::string(100000, '{'))), static_cast<int>(ErrorCode::BadJson));
}

}  // namespace
}  // namespace Tarvik::Server
