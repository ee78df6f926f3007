// SPDX-License-Identifier: MIT
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/interface/LoadString.h>
#include <tarvik/interface/SysMsgSink.h>
#include <tarvik/interface/ValueDictionary.h>

namespace Tarvik::Interface {

namespace {

class OneLanguage : public LanguageSource {
  public:
    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string& name,
                                       const std::u16string& key) const override {
        if (section == u"Seaplan" && name == u"Text" && key == u"IDS_A") {
            return u"Voyage";
        }
        if (key == u"IDS_PAIR") {
            return u"ab\U0001F600";
        }
        if (key == u"IDS_EMPTY") {
            return u"";
        }
        return std::nullopt;
    }
};

class LoadStringTest : public testing::Test {
  protected:
    void SetUp() override { LanguageSource::Set(&source); }
    void TearDown() override { LanguageSource::Set(nullptr); }
    std::u16string Load(const char16_t* key, std::size_t capacity) {
        std::u16string buffer(32, u'#');
        TrvLoadString(u"Seaplan", u"Text", key, buffer.data(), u"default", capacity);
        EXPECT_EQ(buffer[capacity], u'#');
        return std::u16string(buffer.c_str());
    }
    OneLanguage source;
};

TEST_F(LoadStringTest, GivesTheTextOrTheDefault) {
    EXPECT_EQ(LanguageSource::Current(), &source);
    EXPECT_EQ(Load(u"IDS_A", 20), u"Voyage");
    EXPECT_EQ(Load(u"IDS_B", 20), u"default");
    EXPECT_EQ(Load(u"IDS_EMPTY", 20), u"");
    EXPECT_EQ(Load(nullptr, 20), u"default");
}

TEST_F(LoadStringTest, WithoutASourceTheDefaultStands) {
    LanguageSource::Set(nullptr);
    EXPECT_EQ(Load(u"IDS_A", 20), u"default");
}

TEST_F(LoadStringTest, CutsAtTheCapacityButNoPair) {
    EXPECT_EQ(Load(u"IDS_A", 7), u"Voyage");
    EXPECT_EQ(Load(u"IDS_A", 4), u"Voy");
    EXPECT_EQ(Load(u"IDS_A", 1), u"");
    EXPECT_EQ(Load(u"IDS_PAIR", 5), u"ab\U0001F600");
    EXPECT_EQ(Load(u"IDS_PAIR", 4), u"ab");
}

TEST_F(LoadStringTest, NoRoomIsLeftAlone) {
    char16_t untouched = u'#';
    TrvLoadString(u"Seaplan", u"Text", u"IDS_A", &untouched, u"default", 0);
    EXPECT_EQ(untouched, u'#');
    TrvLoadString(u"Seaplan", u"Text", u"IDS_A", nullptr, u"default", 5);
    char16_t one[2] = {u'#', u'#'};
    TrvLoadString(nullptr, nullptr, nullptr, one, nullptr, 2);
    EXPECT_EQ(one[0], u'\0');
}

class AlwaysYes : public SysMsgSink {
  public:
    SysMsgHandleRes SyncSendMsg(int, const std::u16string&, int, void*, const std::u16string&) override {
        return SysMsgHandleRes::Yes;
    }
};

TEST(SysMsgSinkTest, IsSilentUntilTheHostPutsItsOwn) {
    ASSERT_NE(SysMsgSink::Instance(), nullptr);
    EXPECT_EQ(SysMsgSink::Instance()->SyncSendMsg(1, u"?", 4, nullptr, u""), SysMsgHandleRes::None);
    AlwaysYes yes;
    SysMsgSink::Set(&yes);
    EXPECT_EQ(SysMsgSink::Instance()->SyncSendMsg(1, u"?", 4, nullptr, u""), SysMsgHandleRes::Yes);
    SysMsgSink::Set(nullptr);
    EXPECT_EQ(SysMsgSink::Instance()->SyncSendMsg(1, u"?", 4, nullptr, u""), SysMsgHandleRes::None);
}

class OnePort : public ValueDictionary {
  public:
    std::string KeyOfValue(const std::string& path, const std::string& value, int language) const override {
        return path == "/points" && value == "Hamburg" && language == 1033 ? "77" : "";
    }
    std::string ValueOfKey(const std::string& path, const std::string& key, int language) const override {
        return path == "/points" && key == "77" && language == 1033 ? "Hamburg" : "";
    }
};

TEST(ValueDictionaryTest, TranslatesPortsBothWays) {
    EXPECT_EQ(ValueDictionary::Current(), nullptr);
    EXPECT_EQ(GetNameByValue("/points", "Hamburg", 1033), "");
    EXPECT_EQ(GetValueByName("/points", "77", 1033), "");
    OnePort ports;
    ValueDictionary::Set(&ports);
    EXPECT_EQ(GetNameByValue("/points", "Hamburg", 1033), "77");
    EXPECT_EQ(GetValueByName("/points", "77", 1033), "Hamburg");
    EXPECT_EQ(GetValueByName("/points", "78", 1033), "");
    ValueDictionary::Set(nullptr);
}

}  // namespace
}  // namespace Tarvik::Interface
