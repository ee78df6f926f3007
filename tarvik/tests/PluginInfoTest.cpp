// SPDX-License-Identifier: MIT
#include <cstddef>
#include <exception>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <tarvik/core/PluginInfo.h>

namespace Tarvik {

namespace {

static_assert(std::has_virtual_destructor_v<Core::CTrvSoftInfo>);
static_assert(std::is_base_of_v<Core::CTrvSoftInfo, Plugin::CPluginInfo>);
static_assert(std::is_base_of_v<std::exception, Core::InvalidVersionFormatException>);

using Core::InvalidVersionFormatException;
using Core::Version;
using Plugin::CPluginInfo;
using Plugin::DependencyList;

Version Make(int major, int minor, int build = -1, int revision = -1) {
    Version version;
    version.major = major;
    version.minor = minor;
    version.build = build;
    version.revision = revision;
    return version;
}

TEST(VersionTest, MissingPartsKeepTheirStartValues) {
    EXPECT_EQ(Version::Parse(""), Make(0, 0));
    EXPECT_EQ(Version::Parse("2"), Make(2, 0));
    EXPECT_EQ(Version::Parse("1.1"), Make(1, 1));
    EXPECT_EQ(Version::Parse("1.1.4"), Make(1, 1, 4));
    EXPECT_EQ(Version::Parse("2.0.1.0"), Make(2, 0, 1, 0));
}

TEST(VersionTest, PartsBehindTheFourthAreIgnored) {
    EXPECT_EQ(Version::Parse("1.2.3.4.5"), Make(1, 2, 3, 4));
}

TEST(VersionTest, PartsThatAreNoNumberReadAsZero) {
    EXPECT_EQ(Version::Parse("a..7x"), Make(0, 0, 7));
}

TEST(VersionTest, NegativePartThrows) {
    try {
        Version::Parse("1.-2");
        FAIL() << "nothing was thrown";
    } catch (const InvalidVersionFormatException& error) {
        EXPECT_STREQ(error.what(), "Version number cannot be negative.");
    }
    EXPECT_THROW(Version::Parse("1.2.3.4.-5"), InvalidVersionFormatException);
    EXPECT_THROW(Version::Parse("1.2.3.4.5.-6"), InvalidVersionFormatException);
}

TEST(VersionTest, OrderCountsAbsentPartsAsZero) {
    EXPECT_TRUE(Version::Parse("1.1").AtLeast(Version::Parse("1.1.0.0")));
    EXPECT_TRUE(Version::Parse("1.1.4").AtLeast(Version::Parse("1.1")));
    EXPECT_FALSE(Version::Parse("1.1").AtLeast(Version::Parse("1.1.4")));
    EXPECT_TRUE(Version::Parse("2").AtLeast(Version::Parse("1.9.9")));
    EXPECT_FALSE(Version::Parse("1.9.9").AtLeast(Version::Parse("1.10")));
}

TEST(DependencyListTest, ReadsEachNameWithItsVersion) {
    const DependencyList list("TRV,1.1.4|PlgSeamap,1.1");
    EXPECT_EQ(list.Text(), "TRV,1.1.4|PlgSeamap,1.1");
    EXPECT_EQ(list.Flag(), 1);
    ASSERT_EQ(list.Entries().size(), 2U);
    EXPECT_EQ(list.Entries()[0].name, "TRV");
    EXPECT_EQ(list.Entries()[0].version, Make(1, 1, 4));
    EXPECT_EQ(list.Entries()[1].name, "PlgSeamap");
    EXPECT_EQ(list.Entries()[1].version, Make(1, 1, -1, -1));
}

TEST(DependencyListTest, PiecesWithoutExactlyOneCommaAreSkipped) {
    const DependencyList list("One|Two,2.0|Three,3,0||Four,4");
    ASSERT_EQ(list.Entries().size(), 2U);
    EXPECT_EQ(list.Entries()[0].name, "Two");
    EXPECT_EQ(list.Entries()[1].name, "Four");
}

TEST(DependencyListTest, PieceWithANegativeVersionIsDropped) {
    const DependencyList list("Bad,1.-2|Good,1.2");
    ASSERT_EQ(list.Entries().size(), 1U);
    EXPECT_EQ(list.Entries()[0].name, "Good");
}

TEST(DependencyListTest, NegativeFifthPartDropsThePieceToo) {
    const DependencyList list("Bad,1.2.3.4.-5|Good,0");
    ASSERT_EQ(list.Entries().size(), 1U);
    EXPECT_EQ(list.Entries()[0].name, "Good");
    EXPECT_EQ(list.Entries()[0].version, Make(0, 0));
}

TEST(DependencyListTest, EmptyNameOrVersionIsStillTwoParts) {
    const DependencyList list("TRV,|,1.2");
    ASSERT_EQ(list.Entries().size(), 2U);
    EXPECT_EQ(list.Entries()[0].name, "TRV");
    EXPECT_EQ(list.Entries()[0].version, Make(0, 0));
    EXPECT_EQ(list.Entries()[1].name, "");
    EXPECT_EQ(list.Entries()[1].version, Make(1, 2));
}

TEST(DependencyListTest, EmptyTextHasNoEntries) {
    EXPECT_TRUE(DependencyList().Entries().empty());
}

TEST(CPluginInfoTest, KeepsTheRawTextAndFlagZero) {
    const CPluginInfo info("TRV,1.1.4|PlgSeamap,1.1");
    EXPECT_EQ(info.dependencyText, "TRV,1.1.4|PlgSeamap,1.1");
    EXPECT_EQ(info.flag, 0);
    EXPECT_EQ(info.dependencies.Entries().size(), 2U);
}

TEST(CPluginInfoTest, FieldsLieInTheirOrder) {
    const CPluginInfo info;
    const auto at = [&info](const auto& field) {
        return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&info);
    };
    const std::ptrdiff_t wide = sizeof(char16_t*);
    EXPECT_EQ(at(info.version) - at(info.name), static_cast<std::ptrdiff_t>(sizeof(std::string)) + wide)
        << "the display name lies between";
    EXPECT_GT(at(info.dependencyText), at(info.version) + 5 * wide);
    EXPECT_GT(at(info.flag), at(info.dependencyText));
    EXPECT_GT(at(info.dependencies), at(info.flag));
}

TEST(CPluginInfoTest, WideFieldsAreOwnedCopies) {
    CPluginInfo info;
    std::u16string text = u"Voyage";
    info.SetDisplayName(text.c_str());
    info.SetDescription(u"Voyage Management");
    info.SetCompany(u"c");
    info.SetEMail(u"e");
    info.SetCopyright(u"r");
    info.SetWebsite(u"w");
    text[0] = u'X';
    EXPECT_EQ(std::u16string(info.DisplayName()), u"Voyage");
    EXPECT_EQ(std::u16string(info.Description()), u"Voyage Management");
    EXPECT_EQ(std::u16string(info.Company()), u"c");
    EXPECT_EQ(std::u16string(info.EMail()), u"e");
    EXPECT_EQ(std::u16string(info.Copyright()), u"r");
    EXPECT_EQ(std::u16string(info.Website()), u"w");
}

TEST(CPluginInfoTest, EmptyOrNullInputLeavesNull) {
    CPluginInfo info;
    EXPECT_EQ(info.DisplayName(), nullptr);
    info.SetDisplayName(u"a");
    info.SetDisplayName(u"");
    EXPECT_EQ(info.DisplayName(), nullptr);
    info.SetDisplayName(u"b");
    info.SetDisplayName(nullptr);
    EXPECT_EQ(info.DisplayName(), nullptr);
}

TEST(CPluginInfoTest, FieldMayBeSetFromItself) {
    CPluginInfo info;
    info.SetCompany(u"same");
    info.SetCompany(info.Company());
    EXPECT_EQ(std::u16string(info.Company()), u"same");
}

}  // namespace
}  // namespace Tarvik
