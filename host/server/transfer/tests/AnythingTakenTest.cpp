// SPDX-License-Identifier: MIT
// Whatever the server takes, a file of exported users brings back: random requests at the limits of every
// field.
#include <limits>
#include <random>

#include <nlohmann/json.hpp>

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
    std::string Text() {
        return Pick({"", " ", "A", "船", "a\\\\b", "\\u0000", "\\u001f\\n", "\xf0\x9f\x9a\xa2", "a|b", "\\\"",
                     std::string(4096, 'x'), std::string(4097, 'x'), "\\ud83d\\udea2", "0", "\xef\xbf\xbf"});
    }
    std::string Number() {
        return Pick({"0",       "-0",  "0.0",       "1",          "1.0",          "1.0000000000000002",
                     "1e-300",  "0.1", "180",       "360",        "360.1",        "-360",
                     "90",      "-90", "999999999", "1000000000", "1000000000.5", "1000000",
                     "1000001", "nan", "inf",       "-1",         "2147483647",   "2147483648",
                     "",        "9",   "10"});
    }
    std::string Time() {
        return Pick(
            {"2026-03-01 00:00:00", "0000-01-01 00:00:00", "9999-12-31 23:59:59", "2026-02-29 00:00:00"});
    }
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

TEST_F(AnythingTakenTest, RandomRequests) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    Odd odd(seed);
    MakeVoyage();
    int taken = 0;
    for (int i = 0; i < 4000; ++i) {
        taken += Takes(4, R"({ci:"1000001",type:"4",cn:")" + odd.Text() + "\"}");
        taken += Takes(5, R"({vi:"1000002",type:"1",vn:")" + odd.Text() + "\"}");
        taken += Takes(5, R"({vi:"1000002",type:"5",vsi:")" + odd.Text() + R"(",vsn:")" + odd.Text() +
                              R"(",vsmsi:")" + odd.Number() + "\"}");
        taken += Takes(9, R"(["1000003",")" + odd.Pick({"0", "1"}) + "\",\"" +
                              odd.Join({odd.Number(), odd.Text(), odd.Number(), odd.Number(), odd.Text(),
                                        odd.Number(), odd.Number(), odd.Number()}) +
                              "\"]");
        taken +=
            Takes(11, R"(["1000002",")" +
                          odd.Join({odd.Number(), odd.Text(), odd.Text(), odd.Pick({"L", "D", " ", "", "Z"}),
                                    odd.Number(), odd.Number(), odd.Number()}) +
                          "\"]");
        taken += Takes(13, R"({vi:"1000002",time:")" + odd.Time() + "\"}");
        taken += Takes(14, R"({psb:"1000003",dt:")" + odd.Time() + "\"}");
        taken +=
            Takes(16, R"({vsi:"",type:"0",vsn:")" + odd.Text() + R"(",vsmsi:")" + odd.Number() +
                          R"(",vsimo:")" + odd.Pick({"0", "9134270", "9134271"}) + R"(",vscs:")" +
                          odd.Pick({"", "VRAB2", "\\u0001", "longer than sixteen"}) + R"(",vst:")" +
                          odd.Text() + R"(",vsl:")" + odd.Number() + R"(",vsp:")" + odd.Number() + "\"}");
        taken += Takes(18, R"({ppi:"",type:"0",ppn:")" + odd.Text() + R"(",xc:")" + odd.Number() +
                               R"(",yc:")" + odd.Number() + "\"}");
        const std::string object = "1000002" + odd.Text();
        taken += service_
                     .Handle("ann", Interface::kRemarkModuleWord, 9,
                             R"({optype:"1",type:")" + odd.Pick({"2", "3", "4"}) + R"(",objectid:")" +
                                 object + R"(",seq:")" + odd.Number() + R"(",subject:")" + odd.Text() +
                                 R"(",body:")" + odd.Text() + "\"}")
                     .starts_with("{\"eid\":0");
    }
    EXPECT_GT(taken, 1000);
    ExpectComesBack();
}

}  // namespace
}  // namespace Tarvik::Server
