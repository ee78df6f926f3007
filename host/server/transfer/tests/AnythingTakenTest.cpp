// SPDX-License-Identifier: MIT
// Whatever the server takes, a file of exported users brings back: random requests at the limits of every
// field.
#include <map>
#include <random>

#include <nlohmann/json.hpp>

#include <tarvik/interface/ServerRequest.h>

#include "host/server/api/RouteSource.h"
#include "host/server/api/VoyageService.h"
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

class NoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view) override { return "[]"; }
    std::string Nearest(std::string_view) override { return "[]"; }
};

class AnythingTakenTest : public TransferTest {
  protected:
    AnythingTakenTest() {
        to.accounts.users["ann"] = {"ann", "hash", false};
        to.storage->Catalog().CreateCategory("bob", "not empty").Value();
    }
    std::string Ask(std::uint16_t command, const std::string& text) {
        return service_.Handle("ann", Interface::kVoyageModuleWord, command, text);
    }
    bool Takes(std::uint16_t command, const std::string& text) {
        return Ask(command, text).starts_with("{\"eid\":0");
    }
    /// A category, a voyage and its book: 1000001 to 1000003.
    void MakeVoyage() {
        ASSERT_TRUE(Takes(4, R"({ci:"",cn:"A",type:0})"));
        ASSERT_TRUE(Takes(5, R"({ci:"1000001",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})"));
        ASSERT_TRUE(Takes(8, R"({vi:"1000002",dt:"2026-03-01 00:00:00"})"));
    }
    void ExpectComesBack() {
        ASSERT_TRUE(Export(from, {"ann", false})) << error;
        ASSERT_TRUE(Import(to, {"", true})) << error;
        Place again;
        again.accounts = to.accounts;
        ASSERT_TRUE(Import(again)) << error;
        EXPECT_EQ(again.Everything("ann"), from.Everything("ann"));
    }

    NoRoutes routes_;
    VoyageService service_{*from.storage, routes_, [] { return std::int64_t{1}; }};
};

TEST_F(AnythingTakenTest, RowsAsLongAsARequestTakesThem) {
    MakeVoyage();
    const std::string end = "|L|1|0|0";
    const std::string name(4090, 'n');
    const std::string call = "0|" + std::string(8192 - 3 - name.size() - end.size(), '1') + "|" + name + end;
    ASSERT_EQ(call.size(), 8192U);
    EXPECT_TRUE(Takes(11, R"(["1000002",")" + call + "\"]"));
    const std::string rest = "|1|2|" + std::string(4087, 'G') + "|5|1|0";
    const std::string row = "0|" + std::string(8190 - 2 - rest.size(), 'n') + rest;
    ASSERT_EQ(row.size(), 8190U);
    EXPECT_TRUE(Takes(9, R"(["1000003","0",")" + row + "\"]"));
    ExpectComesBack();
}

/// Values at and around the limits of a field.
class Odd {
  public:
    explicit Odd(unsigned seed) : random_(seed) {}

    std::string Pick(const std::vector<std::string>& values) { return values[random_() % values.size()]; }
    /// True once in so many times.
    bool Once(unsigned times) { return random_() % times == 0; }
    std::string Text() {
        return Pick({"",
                     " ",
                     "A",
                     "船",
                     "a\\\\b",
                     "\\u0000",
                     "\\u001f\\n",
                     "\xf0\x9f\x9a\xa2",
                     "a|b",
                     "\\\"",
                     std::string(4096, 'x'),
                     std::string(4097, 'x'),
                     "\\ud83d\\udea2",
                     "0",
                     "\xef\xbf\xbf",
                     "\\ud83d",
                     "\xff\xfe",
                     "\x7f",
                     "\xe2\x80\xa8",
                     "\xe2\x80\xae",
                     "\xef\xbb\xbf",
                     "null",
                     "{\\\"end\\\":1}",
                     "  two  ",
                     "e\xcc\x81",
                     "\xc0\x80",
                     "%s%n",
                     "..\\/..\\/x",
                     "'; --"});
    }
    std::string Number() {
        return Pick({"0",       "-0",  "0.0",       "1",          "1.0",          "1.0000000000000002",
                     "1e-300",  "0.1", "180",       "360",        "360.1",        "-360",
                     "90",      "-90", "999999999", "1000000000", "1000000000.5", "1000000",
                     "1000001", "nan", "inf",       "-1",         "2147483647",   "2147483648",
                     "",        "9",   "10"});
    }
    /// A number that most fields take, every other time.
    std::string Value() { return Pick({Pick({"0", "0", "1", "9"}), Number()}); }
    std::string Time() {
        return Pick({"2026-03-01 00:00:00", "0000-01-01 00:00:00", "9999-12-31 23:59:59",
                     "2026-02-29 00:00:00", "2024-02-29 00:00:00", "1900-02-29 12:00:00",
                     "2000-02-29 12:00:00", "0000-02-29 00:00:00", "2026-03-01 24:00:00",
                     "2026-03-01 23:59:60", "2026-13-01 00:00:00", "2026-00-10 00:00:00",
                     "2026-04-31 00:00:00", "10000-01-01 00:00:0", "2026-03-01T00:00:00", "", " ",
                     "2026-03-01 00:00:00\\u0000"});
    }
    std::string Flag() { return Pick({"0", "1", "1", "2", "", "true"}); }
    std::string Join(std::initializer_list<std::string> fields) {
        std::string row;
        for (const std::string& field : fields) {
            row += (row.empty() ? "" : "|") + field;
        }
        return row;
    }

  private:
    std::mt19937 random_;
};

/// Requests by lot, each of which may be taken or not.
class RandomTakenTest : public AnythingTakenTest {
  protected:
    /// Asks, and counts what is taken by command and operation.
    void Try(std::uint16_t command, const std::string& operation, const std::string& text) {
        const nlohmann::json reply = nlohmann::json::parse(Ask(command, text));
        const bool taken = reply.at("eid") == 0;
        taken_[std::to_string(command) + operation] += taken ? 1 : 0;
        for (const char* id : {"ci", "vi", "psb"}) {
            if (taken && reply.contains(id)) {
                made_.push_back(reply.at(id));
            }
        }
    }
    /// A category, a voyage or a book that was made while the test went on.
    std::string Id() { return odd_.Pick(made_); }
    /// `values` are keys and values in turn.
    static std::string Object(std::initializer_list<std::string> values) {
        std::string text;
        for (auto value = values.begin(); value != values.end(); value += 2) {
            text += (text.empty() ? "{" : ",") + *value + ":\"" + *(value + 1) + "\"";
        }
        return text + "}";
    }
    void TryCategories() {
        if (odd_.Once(40)) {
            Try(4, ".0", Object({"ci", "", "type", "0", "cn", odd_.Text()}));
        }
        Try(4, ".4", Object({"ci", odd_.Pick({"1000001", Id()}), "type", "4", "cn", odd_.Text()}));
        const std::string move = odd_.Pick({"1", "1", "2", "2", "3"});
        Try(4, "." + move, Object({"ci", Id(), "type", move}));
    }
    void TryVoyages() {
        if (odd_.Once(10)) {
            Try(5, ".0",
                Object({"ci", odd_.Pick({"1000001", Id()}), "vi", "", "vn", odd_.Text(), "type", "0", "vsi",
                        odd_.Text(), "vr", odd_.Flag(), "va", odd_.Flag()}));
        }
        Try(8, "", Object({"vi", Id(), "dt", odd_.Time()}));
        const std::string voyage = odd_.Pick({"1000002", Id()});
        Try(5, ".1", Object({"vi", voyage, "type", "1", "vn", odd_.Text()}));
        const std::string move = odd_.Pick({"2", "2", "3", "3", "4"});
        Try(5, "." + move, Object({"vi", Id(), "type", move}));
        Try(5, ".5",
            Object(
                {"vi", voyage, "type", "5", "vsi", odd_.Text(), "vsn", odd_.Text(), "vsmsi", odd_.Number()}));
        Try(5, ".6", Object({"vi", voyage, "type", "6", "vr", odd_.Flag()}));
        Try(5, ".7", Object({"vi", voyage, "type", "7", "va", odd_.Flag()}));
        const auto figure = [this] { return odd_.Pick({"2147483647", odd_.Value()}); };
        Try(6, "",
            Object({"vi", voyage, "vfn", figure(), "vff", figure(), "vfa", figure(), "vdn", figure(), "vda",
                    figure(), "vwn", figure(), "vwa", figure()}));
    }
    void TrySchedule() {
        const std::string row = odd_.Join({odd_.Value(), odd_.Text(), odd_.Value(), odd_.Value(), odd_.Text(),
                                           odd_.Value(), odd_.Value(), odd_.Value()});
        Try(9, "", R"(["1000003",")" + odd_.Pick({"0", "1"}) + "\",\"" + row + "\"]");
        const std::string call =
            odd_.Join({odd_.Value(), odd_.Text(), odd_.Text(), odd_.Pick({"L", "D", " ", "", "Z"}),
                       odd_.Value(), odd_.Value(), odd_.Value()});
        Try(11, "", R"(["1000002",")" + call + "\"]");
        Try(13, "", Object({"vi", odd_.Pick({"1000002", Id()}), "time", odd_.Time()}));
        Try(14, "", Object({"psb", odd_.Pick({"1000003", Id()}), "dt", odd_.Time()}));
    }
    void TryLists() {
        Try(16, "",
            Object({"vsi", "", "type", "0", "vsn", odd_.Text(), "vsmsi", odd_.Value(), "vsimo",
                    odd_.Pick({"0", "9134270", "9134271"}), "vscs",
                    odd_.Pick({"", "VRAB2", "\\u0001", "longer than sixteen"}), "vst", odd_.Text(), "vsl",
                    odd_.Value(), "vsp", odd_.Value()}));
        Try(18, "",
            Object({"ppi", "", "type", "0", "ppn", odd_.Text(), "xc", odd_.Value(), "yc", odd_.Value()}));
    }
    void TryRemarks() {
        const std::string object = odd_.Pick({"1000001", "1000002", Id()}) + odd_.Pick({"", odd_.Text()});
        const std::string operation = odd_.Pick({"1", "1", "1", "3", "2"});
        const std::string reply = service_.Handle(
            "ann", Interface::kRemarkModuleWord, 9,
            Object({"optype", operation, "type", odd_.Pick({"2", "3", "4"}), "objectid", object, "seq",
                    odd_.Value(), "subject", odd_.Text(), "body", odd_.Text()}));
        taken_["remark." + operation] += reply.starts_with("{\"eid\":0") ? 1 : 0;
    }

    unsigned seed_ = std::random_device()();
    Odd odd_{seed_};
    std::map<std::string, int> taken_;
    std::vector<std::string> made_ = {"1000009"};
};

TEST_F(RandomTakenTest, ComesBackWhateverItIs) {
    SCOPED_TRACE("seed " + std::to_string(seed_));
    MakeVoyage();
    for (int i = 0; i < 2000; ++i) {
        TryCategories();
        TryVoyages();
        TrySchedule();
        TryLists();
        TryRemarks();
    }
    // Each command with each of its operations: what was never taken is not tried here.
    int all = 0;
    for (const auto& [operation, count] : taken_) {
        EXPECT_GT(count, 0) << operation;
        all += count;
    }
    EXPECT_EQ(taken_.size(), 24U);
    EXPECT_GT(all, 1000);
    ExpectComesBack();
}

}  // namespace
}  // namespace Tarvik::Server
