// SPDX-License-Identifier: MIT
/// Remarks of all three kinds of objects outlive the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/tests/RemarkFixture.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

struct Noted {
    int type = 0;
    std::string objectid;
    std::string body;
};

/// One run of the program over a data base in a file.
class Sitting {
  public:
    explicit Sitting(const std::string& database) : desk(database) {}

    void Write(const Noted& noted) {
        panel.Open(0, noted.type, noted.objectid, "Name");
        panel.Editing().OnSubjectTyped("备注 for " + noted.objectid);
        panel.Editing().OnBodyTyped(noted.body);
        panel.Editing().SaveClick();
    }
    /// "subject|body" of what the panel shows.
    std::string Read(const Noted& noted) {
        panel.Open(0, noted.type, noted.objectid, "Name");
        return view.subject + "|" + view.body;
    }

    KeyTexts texts;
    PanelDesk desk;
    RecordingRemarkView view;
    CRemarkPanel panel{{view, [] { return Point{}; }}};
};

}  // namespace

TEST(RemarkRoundTripTest, RemarksOfACategoryAVoyageAndAPortCallAreThereAfterARestart) {
    const TestSupport::DataFolder folder;
    const std::string database = (folder.Path() / "voyages.db").string();
    std::vector<Noted> notes;
    {
        Sitting first(database);
        const std::string ci = first.desk.AddCategory("Full");
        const std::string vi = first.desk.AddVoyage("Full", {.name = "North"});
        notes = {{CategoryRemark, ci, "one line"},
                 {VoyageRemark, vi, "two\nlines, 100 % of it"},
                 {PortCallRemark, vi + "HAMBURG", "吃水 11.5 米"}};
        for (const Noted& note : notes) {
            first.Write(note);
        }
        EXPECT_TRUE(first.desk.messages.messages.empty());
    }
    Sitting second(database);
    for (const Noted& note : notes) {
        EXPECT_EQ(second.Read(note), "备注 for " + note.objectid + "|" + note.body);
    }
    EXPECT_THAT(second.desk.Sent(Ask::kLoadRemarks),
                ElementsAre("{optype:\"4\",type:\"2\",objectid:\"" + notes[0].objectid + "\"}",
                            "{optype:\"4\",type:\"3\",objectid:\"" + notes[1].objectid + "\"}",
                            "{optype:\"4\",type:\"4\",objectid:\"" + notes[2].objectid + "\"}"));
    std::string user;
    ASSERT_EQ(second.desk.catalog.Connect(user), 0);
    ASSERT_EQ(second.desk.catalog.Load(user), 0);
    EXPECT_EQ(second.desk.Category("Full").crk, 1);
    EXPECT_EQ(second.desk.Voyage("North").vrk, 1);
}

}  // namespace Tarvik::Seaplan
