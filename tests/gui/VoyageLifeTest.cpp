// SPDX-License-Identifier: MIT
#include "tests/gui/ClientTree.h"
#include "tests/gui/Display.h"
#include "tests/gui/Person.h"
#include "tests/gui/Picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <exception>

namespace Tarvik::Programs {
namespace {

/// A place within a window, in pixels.
struct Place {
    int x;
    int y;
};

// The voyage panel, with one category at the top of its tree and one voyage below.
constexpr Place kVoyagesTool{40, 18};
constexpr Place kStatusLine{640, 790};
constexpr Place kRenameEditor{130, 58};
constexpr Place kAddVoyage{73, 89};
constexpr Place kVoyageBehindItsCategory{150, 122};
constexpr Place kCategory{100, 61};
constexpr Place kSetPortCalls{98, 122};
constexpr Place kPortCallsButton{55, 181};
// The first cells of the port call table.
constexpr Place kFirstPort{103, 84};

/// The second row of the port call table from its number to the hours in port.
std::string SecondRow(const std::string& portCalls) {
    return Cut(portCalls, 10, 94, 400, 19);
}

/// One run of the client on a display, from its start to its end.
class Sitting {
  public:
    Sitting(const ClientTree& client, const Person& person, const std::string& display)
        : person_(person), process_(onDisplay(client, display)) {
        main = person.AwaitWindow("Seaplan");
    }
    ~Sitting() {
        // What was on the screen when a test failed says more than its words.
        const char* folder = std::getenv("SEAPLAN_TEST_PICTURES");
        const bool failed = std::uncaught_exceptions() > 0 || testing::Test::HasFailure();
        if (folder != nullptr && failed) person_.Photograph(std::string(folder) + "/failed.png");
    }
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    /// Opens the voyage panel from the toolbar.
    void OpenVoyages() {
        person_.Click(main, kVoyagesTool.x, kVoyagesTool.y);
        voyages = person_.AwaitWindow("Voyages");
    }
    void ClickVoyages(const Place& place) const { person_.Click(voyages, place.x, place.y); }
    /// Opens the port calls of the selected voyage and waits until the panel is drawn.
    void OpenPortCalls(const Place& place) {
        person_.Click(voyages, place.x, place.y);
        portCalls = person_.AwaitWindow("Port calls");
    }
    /// Ends the program as a person does and waits for its end.
    Ended Leave() {
        person_.Click(main, kStatusLine.x, kStatusLine.y);
        person_.Press({"ctrl+q"});
        return process_.Wait();
    }

    std::string main;
    std::string voyages;
    std::string portCalls;

  private:
    static ChildProcess::Start onDisplay(const ClientTree& client, const std::string& display) {
        auto start = client.Words({"--lang", "en-US", "--theme", "light"});
        start.environment["DISPLAY"] = display;
        start.environment["QT_QPA_PLATFORM"] = "xcb";
        start.environment["QT_SCALE_FACTOR"] = "1";
        return start;
    }

    const Person& person_;
    ChildProcess process_;
};

class VoyageLife : public testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(display_.Name(), ""); }

    /// Waits until a query of the data base answers the number.
    void await(const std::string& sql, long number) const {
        AwaitOrThrow([&] { return client_.Number(sql) == number; }, sql);
    }
    void rename(const std::string& name) const {
        person_.Press({"ctrl+a"});
        person_.Type(name);
        person_.Press({"Return"});
    }
    /// Makes the category and in it the voyage.
    void makeVoyage(Sitting& sitting) const {
        sitting.OpenVoyages();
        await("select count(*) from categories", 1);
        sitting.ClickVoyages(kRenameEditor);
        rename("Tankers");
        await("select count(*) from categories where cn='Tankers'", 1);
        sitting.ClickVoyages(kAddVoyage);
        await("select count(*) from voyages", 1);
        rename("Winter");
        await("select count(*) from voyages where vn='Winter'", 1);
    }
    /// Types two ports, calculates and saves.
    void planAndSave(const Sitting& sitting) const {
        person_.Click(sitting.portCalls, kFirstPort.x, kFirstPort.y);
        for (const char* port : {"Rotterdam", "Hamburg"}) {
            person_.Type(port);
            person_.Press({"Return"});
        }
        person_.Press({"F9", "ctrl+s"});
        await("select count(*) from port_calls", 2);
        await("select count(*) > 2 from book_rows", 1);
    }

    Display display_;
    Person person_{display_.Name()};
    ClientTree client_;
};

TEST_F(VoyageLife, AVoyageMadeByHandIsThereAfterARestart) {
    std::string shown;
    {
        Sitting sitting(client_, person_, display_.Name());
        makeVoyage(sitting);
        sitting.ClickVoyages(kVoyageBehindItsCategory);
        sitting.OpenPortCalls(kSetPortCalls);
        const std::string empty = person_.Look(sitting.portCalls);
        planAndSave(sitting);
        person_.Press({"ctrl+w"});
        person_.AwaitGone("Port calls");
        sitting.OpenPortCalls(kPortCallsButton);
        shown = person_.LookForChange(sitting.portCalls, empty);
        ASSERT_NE(SecondRow(empty), "");
        ASSERT_NE(SecondRow(shown), SecondRow(empty));
        const Ended ended = sitting.Leave();
        EXPECT_EQ(ended.exitCode, 0) << ended.err;
    }
    Sitting again(client_, person_, display_.Name());
    again.OpenVoyages();
    again.ClickVoyages(kCategory);
    again.ClickVoyages(kVoyageBehindItsCategory);
    again.OpenPortCalls(kPortCallsButton);
    std::string found;
    const auto asBefore = [&] {
        found = person_.Look(again.portCalls);
        return SecondRow(found) == SecondRow(shown);
    };
    EXPECT_TRUE(Eventually(asBefore)) << "the port calls do not look as they did before the restart";
    if (HasFailure()) {
        Keep("before.ppm", shown);
        Keep("after.ppm", found);
    }
    EXPECT_EQ(again.Leave().exitCode, 0);
}

}  // namespace
}  // namespace Tarvik::Programs
