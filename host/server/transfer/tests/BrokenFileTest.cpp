// SPDX-License-Identifier: MIT
#include "host/server/transfer/tests/SampleOwner.h"
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

class BrokenFileTest : public TransferTest {
  protected:
    BrokenFileTest() {
        MakeSample(*from.storage, "ann");
        from.accounts.users["ann"] = {"ann", "$argon2id$a", false};
        EXPECT_TRUE(Export(from, {"", true}));
        whole_ = Bytes();
    }
    /// Expects that the text is refused for this reason and that nothing was read in.
    void ExpectRefused(const std::string& bytes, const std::string& reason) {
        WriteBytes(bytes);
        EXPECT_FALSE(Import(to));
        EXPECT_NE(error.find(reason), std::string::npos) << error;
        EXPECT_NE(error.find(Path()), std::string::npos) << error;
        EXPECT_TRUE(to.storage->Transfer().ListOwners().Value().empty());
        EXPECT_TRUE(to.accounts.users.empty());
    }
    static std::string Voyage(const std::string& from = "", const std::string& into = "") {
        std::string line =
            R"({"voyage":"1000002","name":"V","vessel":["","",0],"route":false,"ais":false,)"
            R"("figures":[0,0,0,0,0,0,0],"state":0,"times":["2026-03-01 00:00:00"],)"
            R"("calls":[[0,"1","P","L",1.5,0.5,2.0]],"book":{"id":"1000003","date":"2026-03-01 00:00:00",)"
            R"("rows":[[0,"a",1.5,2.5,"GC",5,3.5,1]]}})";
        if (!from.empty()) {
            line.replace(line.find(from), from.size(), into);
        }
        return line + "\n";
    }
    static std::string Vessel(const std::string& from = "", const std::string& into = "") {
        std::string line =
            R"({"vessel":"1000007","name":"M","mmsi":477123456,"imo":9134270,"callsign":"VRAB2","type":"Tanker",)"
            R"("length":229.5,"speed":25.928})";
        if (!from.empty()) {
            line.replace(line.find(from), from.size(), into);
        }
        return line + "\n";
    }
    static std::string Remark(const std::string& name = R"([3,"1000002",1])",
                              const std::string& subject = "s") {
        return R"({"remark":)" + name + R"(,"subject":")" + subject +
               R"(","body":"","created":1,"updated":1})" + "\n";
    }

    std::string whole_;
};

TEST_F(BrokenFileTest, FileMadeByHandIsReadInWhenItIsRight) {
    WriteBytes(Ended(Head() + User() + Category() + Voyage() + Remark()));
    EXPECT_TRUE(Import(to)) << error;
    EXPECT_EQ(done, "imported 1 user, 1 category, 1 voyage, 1 remark");
}

TEST_F(BrokenFileTest, FileCutAtAnyByteIsRefused) {
    for (std::size_t size = 0; size + 1 < whole_.size(); size += 13) {
        WriteBytes(whole_.substr(0, size));
        ASSERT_FALSE(Import(to)) << size;
    }
    ExpectRefused(whole_.substr(0, whole_.rfind('{')), "is cut short after line");
    ExpectRefused(whole_.substr(0, whole_.size() - 3), "this is no record, or one that was cut");
    ExpectRefused("", "cannot be read, or is empty");
}

TEST_F(BrokenFileTest, AlteredFileIsRefused) {
    std::string bytes = whole_;
    bytes[bytes.find("\"2026\"") + 4] = '7';
    ExpectRefused(bytes, "the file was altered");
    bytes = whole_;
    const std::size_t line = bytes.find("{\"remark\"");
    bytes.erase(line, bytes.find('\n', line) + 1 - line);
    ExpectRefused(bytes, "lines are missing");
    ExpectRefused(whole_ + whole_, "there is more behind the end");
    ExpectRefused(whole_ + "\n", "there is more behind the end");
}

TEST_F(BrokenFileTest, OtherVersionAndOtherFilesAreRefused) {
    std::string bytes = whole_;
    bytes.replace(bytes.find("\"version\":1"), 11, "\"version\":2");
    ExpectRefused(bytes, "line 1: the file has version 2, made by another program; this one reads version 1");
    ExpectRefused("SQLite format 3", "line 1: this is no record, or one that was cut");
    ExpectRefused("{\"a\":1}\n", "line 1: this is no file of exported users");
    ExpectRefused(std::string(100000, '['), "line 1: this is no record, or one that was cut");
}

TEST_F(BrokenFileTest, RecordsOutOfPlaceAreRefused) {
    ExpectRefused(Ended(Head() + Category()), "line 2: there is no user before this record");
    ExpectRefused(Ended(Head() + User() + Voyage()), "line 3: there is no category before this voyage");
    ExpectRefused(Ended(Head() + User() + "{\"ship\":1}\n"), "line 3: there are no such records");
    ExpectRefused(Ended(Head() + User() + User()), "line 3: the user is there twice");
    ExpectRefused(Ended(Head() + User() + Category() + Category()),
                  "line 4: the id is none, or is there twice");
    ExpectRefused(Ended(Head() + User() + Category("1000003") + Voyage()),
                  "the book's id is none, or is there twice");
    ExpectRefused(Ended(Head() + User() + Category() + Remark()),
                  "line 4: the remark is of nothing that the user has");
    ExpectRefused(Ended(Head() + User() + Category() + Voyage() + Remark() + Remark()),
                  "the remark is there twice");
}

TEST_F(BrokenFileTest, IdsThatNoServerGivesAreRefused) {
    for (const char* id : {"", "0", "01", "-1", "1 ", "x", "1000000000000000"}) {
        ExpectRefused(Ended(Head() + User() + Category(id)), "line 3: the id is none, or is there twice");
    }
}

TEST_F(BrokenFileTest, ValuesThatNoRequestStoresAreRefused) {
    const struct {
        const char* from;
        const char* into;
        const char* reason;
    } cases[] = {
        {R"("V")", R"("")", "the name is empty or too long"},
        {R"(["","",0])", R"(["","",-1])", "the vessel is none"},
        {R"(["","",0])", R"(["","",4294967296])", "a number is too large"},
        {R"(["","",0])", R"(["",""])", "a row has another length"},
        {R"([0,0,0,0,0,0,0])", R"([0,0,0,0,0,0,-1])", "a figure is below 0"},
        {R"([0,0,0,0,0,0,0])", R"([0,0,0,0,0,0])", "a row has another length"},
        {R"("state":0)", R"("state":2)", "a state is 0 or 1"},
        {R"(["2026-03-01 00:00:00"])", R"(["2026-02-30 00:00:00"])", "an AIS time is none"},
        {R"(["2026-03-01 00:00:00"])", R"(["2026-03-01 00:00:00","2026-03-01 00:00:00"])", "there twice"},
        {R"([0,"1","P","L",1.5,0.5,2.0])", R"([0,"1","P","Q",1.5,0.5,2.0])", "a port call is none"},
        {R"([0,"1","P","L",1.5,0.5,2.0])", R"([0,"1","a|b","L",1.5,0.5,2.0])", "a port call is none"},
        {R"([0,"1","P","L",1.5,0.5,2.0])", R"([0,"1","P","L",1.5,1.5,2.0])", "a port call is none"},
        {R"([0,"1","P","L",1.5,0.5,2.0])", R"([0,"1","P","L",null,0.5,2.0])", "a number is expected"},
        {R"([0,"1","P","L",1.5,0.5,2.0])", R"([1,"1","P","L",1,0,2],[0,"1","P","L",1,0,2])",
         "out of its order"},
        {R"("date":"2026-03-01 00:00:00")", R"("date":"soon")", "the book's date is none"},
        {R"([0,"a",1.5,2.5,"GC",5,3.5,1])", R"([0,"a",1.5,92.5,"GC",5,3.5,1])", "a row of the book is none"},
        {R"([0,"a",1.5,2.5,"GC",5,3.5,1])", R"([0.5,"a",1.5,2.5,"GC",5,3.5,1])",
         "a whole number is expected"},
        {R"("route":false)", R"("route":0)", "this record is damaged"},
        {R"("ais":false,)", "", "this record is damaged"},
    };
    for (const auto& [before, after, reason] : cases) {
        SCOPED_TRACE(after);
        ExpectRefused(Ended(Head() + User() + Category() + Voyage(before, after)), reason);
    }
}

TEST_F(BrokenFileTest, RemarksThatNoRequestStoresAreRefused) {
    const std::string before = Head() + User() + Category() + Voyage();
    for (const char* name : {R"([3,"1000001",1])", R"([2,"1000002",1])", R"([4,"1000002",1])",
                             R"([5,"1000002",1])", R"([3,"1000009",1])", R"([4,"",1])"}) {
        ExpectRefused(Ended(before + Remark(name)), "the remark is of nothing that the user has");
    }
    ExpectRefused(Ended(before + Remark(R"([3,"1000002",0])")), "the remark's number is below 1");
    ExpectRefused(Ended(before + Remark(R"([3,"1000002",1])", std::string(65537, 's'))), "text is too long");
    ExpectRefused(Ended(before + Remark(R"([3,"1000002",1])", "\\u0000")), "text is too long");
}

TEST_F(BrokenFileTest, VesselsThatNoRequestStoresAreRefused) {
    const struct {
        const char* from;
        const char* into;
        const char* reason;
    } cases[] = {
        {"1000007", "x", "line 3: the id is none, or is there twice"},
        {R"("M")", R"("")", "line 3: a name must not be empty"},
        {"477123456", "47712345", "line 3: this is no MMSI of a ship"},
        {"9134270", "9134271", "line 3: this is no IMO number, or its check digit is wrong"},
        {"VRAB2", "longer than sixteen", "line 3: a text is too long"},
        {"229.5", "1000.5", "line 3: a number does not parse or is out of range"},
        {"229.5", "\"long\"", "line 3: this record is damaged: a number is expected"},
        {R"(,"imo":9134270)", "", "line 3: this record is damaged"},
    };
    for (const auto& [before, after, reason] : cases) {
        SCOPED_TRACE(after);
        ExpectRefused(Ended(Head() + User() + Vessel(before, after)), reason);
    }
    ExpectRefused(Ended(Head() + User() + Vessel() + Vessel()), "line 4: the id is none, or is there twice");
    std::string fleet = Head() + User();
    for (std::size_t i = 0; i <= kMostVessels; ++i) {
        fleet += Vessel("1000007", std::to_string(2000000 + i));
    }
    ExpectRefused(Ended(fleet), "line " + std::to_string(kMostVessels + 3) + ": the list is full");
    WriteBytes(Ended(Head() + User() + Vessel("477123456", "1") + Vessel("1000007", "1000008")));
    ASSERT_TRUE(Import(to, {"", false, true})) << error;
    EXPECT_EQ(done,
              "imported 1 user, 0 categories, 0 voyages, 0 remarks, 1 vessel\n"
              "left out: vessel \"1000007\" \"M\" of line 3: this is no MMSI of a ship");
}

TEST_F(BrokenFileTest, OwnPortsThatNoRequestStoresAreRefused) {
    const auto place = [](const std::string& id, const std::string& name, const std::string& position) {
        return R"({"place":")" + id + R"(","name":")" + name + R"(","position":)" + position + "}\n";
    };
    const std::string before = Head() + User();
    ExpectRefused(Ended(before + place("x", "A", "[1,2]")), "line 3: the id is none, or is there twice");
    ExpectRefused(Ended(before + place("1000007", "", "[1,2]")), "line 3: a name must not be empty");
    ExpectRefused(Ended(before + place("1000007", "a|b", "[1,2]")), "line 3: a port's name holds a bar");
    ExpectRefused(Ended(before + place("1000007", "A", "[181,2]")), "line 3: a position is none");
    ExpectRefused(Ended(before + place("1000007", "A", "[1]")), "line 3: this record is damaged");
}

TEST_F(BrokenFileTest, BadRecordsAreLeftOutByNameWhenThatIsWished) {
    std::string second = Voyage();
    for (const char* id : {"1000002", "1000003"}) {
        second.replace(second.find(id), 7, std::string(id) == "1000002" ? "1000004" : "1000005");
    }
    WriteBytes(Ended(Head() + User() + Category() + Voyage(R"("P","L")", R"("P","Q")") + second + Remark() +
                     Remark(R"([3,"1000004",1])") + Category("x") +
                     "{\"voyage\":\"1000008\",\"name\":\"Lost\"}\n"));
    EXPECT_FALSE(Import(to));
    ASSERT_TRUE(Import(to, {"", false, true})) << error;
    EXPECT_EQ(done,
              "imported 1 user, 1 category, 1 voyage, 1 remark\n"
              "left out: voyage \"1000002\" \"V\" of line 4: a port call is none, or out of its order\n"
              "left out: remark [3,\"1000002\",1] of line 6: the remark is of nothing that the user has\n"
              "left out: category \"x\" \"A\" of line 8: the id is none, or is there twice\n"
              "left out: voyage \"1000008\" \"Lost\" of line 9: its category was left out");
    EXPECT_EQ(to.storage->Catalog().LoadCatalog("ann").Value().at(0).voyages.at(0).id, "1000004");
}

TEST_F(BrokenFileTest, BadUsersAreLeftOutWithAllTheyHave) {
    const std::string bad =
        "{\"user\":\"bob\",\"password\":\"$argon2id$v=19$m=9999999,t=2,p=1$a$b\",\"disabled\":false}\n";
    ExpectRefused(Ended(Head() + bad), "line 2: the password's hash would cost more than a login may");
    WriteBytes(Ended(Head() + bad + Category("1000009") + User() + Category()));
    ASSERT_TRUE(Import(to, {"", false, true})) << error;
    EXPECT_EQ(done.substr(0, done.find('\n')), "imported 1 user, 1 category, 0 voyages, 0 remarks");
    EXPECT_TRUE(to.accounts.users.contains("ann"));
    EXPECT_FALSE(to.accounts.users.contains("bob"));
}

TEST_F(BrokenFileTest, MissingFileAndFolderAreRefused) {
    EXPECT_EQ(TransferReader::Open(Path("none"), error), nullptr);
    EXPECT_EQ(TransferReader::Open(std::filesystem::path(Path()).parent_path().string(), error), nullptr);
}

}  // namespace
}  // namespace Tarvik::Server
