// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/RemarkMessages.h"

namespace Tarvik::Seaplan {

namespace {

TEST(RemarkTextsTest, EveryTextIsByteExact) {
    EXPECT_EQ(AddRemarkText(2, "11", 1, "T", "B"),
              R"({optype:"1",type:"2",objectid:"11",seq:"1",subject:"T",body:"B"})");
    EXPECT_EQ(DeleteRemarkText(3, "21", 12), R"({optype:"2",type:"3",objectid:"21",seq:"12"})");
    EXPECT_EQ(ChangeRemarkText(4, "21Hamburg", 3, "T", "B"),
              R"({optype:"3",type:"4",objectid:"21Hamburg",seq:"3",subject:"T",body:"B"})");
    EXPECT_EQ(LoadRemarksText(4, "21Hamburg"), R"({optype:"4",type:"4",objectid:"21Hamburg"})");
}

TEST(RemarkTextsTest, EmptySubjectAndBodyStand) {
    EXPECT_EQ(AddRemarkText(2, "11", 1, "", ""),
              R"({optype:"1",type:"2",objectid:"11",seq:"1",subject:"",body:""})");
}

TEST(RemarkTextsTest, NothingIsEscapedOrReplaced) {
    EXPECT_EQ(
        AddRemarkText(2, "11", 1, "a\"b\\c", "one\r\ntwo\t50%s"),
        "{optype:\"1\",type:\"2\",objectid:\"11\",seq:\"1\",subject:\"a\"b\\c\",body:\"one\r\ntwo\t50%s\"}");
    EXPECT_EQ(ChangeRemarkText(2, "11", 1, "'\"", "\\"),
              "{optype:\"3\",type:\"2\",objectid:\"11\",seq:\"1\",subject:\"'\"\",body:\"\\\"}");
}

TEST(RemarkTextsTest, TextOfOtherScriptsGoesOutAsUtf8) {
    EXPECT_EQ(ChangeRemarkText(3, "21", 1, "\xe8\x88\xb9", "\xf0\x9f\x9a\xa2"),
              "{optype:\"3\",type:\"3\",objectid:\"21\",seq:\"1\",subject:\"\xe8\x88\xb9\",body:"
              "\"\xf0\x9f\x9a\xa2\"}");
}

}  // namespace
}  // namespace Tarvik::Seaplan
