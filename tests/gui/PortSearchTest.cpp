// SPDX-License-Identifier: MIT
// The search plug-in's window below the port editor, on a real display.
#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

class PortSearch : public testing::TestWithParam<std::string> {};

TEST_P(PortSearch, AnAliasIsFoundTakenByTheArrowsAndSavedByThePortsName) {
    const Display display{GetParam()};
    ASSERT_NE(display.Name(), "");
    const Person person{display.Name()};
    const ClientTree client;
    Sitting sitting(client, person, display.Name());
    sitting.MakeVoyage();
    sitting.OpenEmptyPortCalls();
    const std::string empty = person.Look(sitting.portCalls);
    sitting.TypePorts({"Rotterdam"});
    const std::string first = person.LookForChange(sitting.portCalls, empty);
    person.Type("pusan");
    person.LookForChange(sitting.portCalls, first);
    person.Press({"Down", "Return"});
    person.Press({"F9", "ctrl+s"});
    AwaitOrThrow([&] { return client.Number("select count(*) from port_calls where ppn='Busan'") == 1; },
                 "the port is saved by its name");
    EXPECT_EQ(sitting.Leave().exitCode, 0);
}

INSTANTIATE_TEST_SUITE_P(Managers, PortSearch, testing::ValuesIn(Managers()),
                         [](const auto& window) { return ManagerName(window.param); });

}  // namespace
}  // namespace Tarvik::Programs
