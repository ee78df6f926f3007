// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/controllers/voycal/VoyCalChange.h"

namespace Tarvik::Seaplan {

namespace {

VoyCalGroup GroupOf(const std::string& head, std::map<std::string, std::string> ranges = {}) {
    VoyCalGroup group;
    group.head.id = head;
    group.ranges = std::move(ranges);
    return group;
}

/// A port with the groups a to d, of which b has two ranges.
VoyCalPort PortWith(const std::string& locks) {
    VoyCalPort port;
    port.point.id = "42";
    port.rp_id_str = "a,b,c,d";
    port.lock_rp_id_str = locks;
    port.groups = {GroupOf("a"), GroupOf("b", {{"x,y", "n|m"}, {"k,l", "n"}}), GroupOf("c"), GroupOf("d")};
    return port;
}

VoyCalChange ChangeTo(const std::string& oldId, const std::string& newId) {
    return {oldId, newId, 1, "", newId + "=x,y"};
}

TEST(VoyCalChange, FirstRangeByKeyAnswers) {
    const auto change = ChangeOf({VoyCalPort{}, PortWith("")}, "b", "m");
    ASSERT_TRUE(change);
    EXPECT_EQ(change->port, 1);
    EXPECT_EQ(change->oldId, "b");
    EXPECT_EQ(change->newId, "m");
    EXPECT_EQ(change->group, "k,l;n|b") << "though the other range names the new point";
    EXPECT_EQ(change->lock, "m=k,l");
}

TEST(VoyCalChange, FirstPortWithSuchAGroupCounts) {
    auto second = PortWith("");
    second.groups[1].ranges = {{"later", "z"}};
    const auto change = ChangeOf({PortWith(""), second}, "b", "n");
    ASSERT_TRUE(change);
    EXPECT_EQ(change->port, 0);
}

TEST(VoyCalChange, NothingWithoutGroupOrRange) {
    EXPECT_FALSE(ChangeOf({PortWith("")}, "z", "n"));
    EXPECT_FALSE(ChangeOf({PortWith("")}, "a", "n"));
    EXPECT_FALSE(ChangeOf({PortWith("")}, "", "n"));
    EXPECT_FALSE(ChangeOf({}, "b", "n"));
}

TEST(VoyCalEntry, WithoutLocksTheNewOneStandsAlone) {
    EXPECT_EQ(EntryWithLock(PortWith(""), ChangeTo("b", "n"), true), "42|a,b,c,d|n=x,y");
}

TEST(VoyCalEntry, NothingWhenTheOldPointHasNoGroup) {
    EXPECT_FALSE(EntryWithLock(PortWith("a=1,2"), ChangeTo("z", "n"), true));
}

struct EntryCase {
    const char* name;
    const char* oldId;
    const char* newId;
    const char* locks;
    const char* text;
};

// Groups a, b, c, d have the places 0 to 3; the last place gets no "." behind its lock.
TEST(VoyCalEntry, LocksKeepTheOrderOfTheirGroups) {
    for (const auto& c : {
             EntryCase{"a lock of its own place gives way", "b", "n", "b=1,2", "n=x,y"},
             EntryCase{"a lock before stays before", "b", "n", "a=1,2", "a=1,2.n=x,y"},
             EntryCase{"a lock behind stays behind", "b", "n", "c=1,2", "n=x,y.c=1,2"},
             EntryCase{"and so does the last", "b", "n", "d=1,2", "n=x,y.d=1,2"},
             EntryCase{"all four", "b", "n", "a=1,2.b=3,4.c=5,6.d=7,8", "a=1,2.n=x,y.c=5,6.d=7,8"},
             EntryCase{"of one place twice the later stays out", "b", "n", "b=1,2.b=3,4.c=5,6",
                       "n=x,y..c=5,6"},
             EntryCase{"a lock of the new point gives way", "b", "c", "c=5,6.d=7,8", "c=x,y.d=7,8"},
             EntryCase{"also behind the new text", "b", "c", "b=1,2.c=5,6", "c=x,y"},
             EntryCase{"an unknown place counts as before", "b", "n", "q=1,2.c=5,6", "q=1,2.n=x,y.c=5,6"},
             EntryCase{"for the first place all are behind", "a", "n", "b=1,2.c=3,4", "n=x,y.b=1,2.c=3,4"},
             EntryCase{"for the last place all are before", "d", "n", "b=1,2.c=3,4", "b=1,2.c=3,4.n=x,y"},
             EntryCase{"no dots at the ends", "b", "n", "..", "n=x,y"},
         }) {
        const auto entry = EntryWithLock(PortWith(c.locks), ChangeTo(c.oldId, c.newId), true);
        ASSERT_TRUE(entry) << c.name;
        EXPECT_EQ(*entry, std::string("42|a,b,c,d|") + c.text) << c.name;
    }
}

TEST(VoyCalEntry, LockThatNamesTheOldPointGoesUnlessChosenAmongAlternatives) {
    for (const auto* locks : {"a=1,b", "a=b,1"}) {
        EXPECT_EQ(EntryWithLock(PortWith(locks), ChangeTo("b", "n"), true),
                  std::string("42|a,b,c,d|") + locks + ".n=x,y");
        EXPECT_EQ(EntryWithLock(PortWith(locks), ChangeTo("b", "n"), false), "42|a,b,c,d|n=x,y");
    }
    EXPECT_EQ(EntryWithLock(PortWith("b=1,2.c=1,b"), ChangeTo("b", "n"), false), "42|a,b,c,d|n=x,y");
    EXPECT_EQ(EntryWithLock(PortWith("b=1,2.c=1,bb"), ChangeTo("b", "n"), false), "42|a,b,c,d|n=x,y.c=1,bb");
}

TEST(VoyCalEntry, BeginsWithThePortsId) {
    EXPECT_EQ(PortIdOfEntry("42|a,b|n=x,y"), "42");
    EXPECT_EQ(PortIdOfEntry("42"), "42");
    EXPECT_EQ(PortIdOfEntry(""), "");
}

}  // namespace
}  // namespace Tarvik::Seaplan
