// SPDX-License-Identifier: MIT
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include <gmock/gmock.h>

#include "host/server/api/CommandTable.h"
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

std::string ReadDocument(const std::string& name) {
    std::ifstream file(std::string(SEAPLAN_DOCS) + "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A text as it stands between the bars of a table.
std::string InTable(std::string_view text) {
    std::string escaped;
    for (const char sign : text) {
        escaped += sign == '|' ? std::string("\\|") : std::string(1, sign);
    }
    return escaped;
}

class CommandTableTest : public ServiceTest {};

TEST_F(CommandTableTest, EveryCommandOfTheVoyageModuleHasItsRowInTheWireFormat) {
    std::vector<std::string> expected;
    for (const CommandEntry& entry : CommandTable()) {
        if (entry.moduleWord == Interface::kVoyageModuleWord) {
            expected.push_back("| " + std::to_string(entry.Number()) + " | " + std::string(entry.name) +
                               " | `" + InTable(entry.request) + "`");
        }
    }
    const std::string document = ReadDocument("wire-format.md");
    std::istringstream lines(document.substr(document.find("## Commands of module 5")));
    std::vector<std::string> rows;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("| ") && line[2] >= '0' && line[2] <= '9') {
            rows.push_back(line);
        }
    }
    ASSERT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].substr(0, expected[i].size()), expected[i]);
    }
}

TEST_F(CommandTableTest, RemarksAreToldInTheWireFormat) {
    EXPECT_THAT(ReadDocument("wire-format.md"), HasSubstr("Command 9 of module 0x1002 keeps remarks"));
    ASSERT_NE(FindCommand(0x1002, 9), nullptr);
    EXPECT_EQ(FindCommand(0x1002, 9)->name, "keeps remarks");
}

TEST_F(CommandTableTest, LabelsAreFewAndToldToTheOperator) {
    std::set<std::string_view> labels;
    int last = 0;
    for (const CommandEntry& entry : CommandTable()) {
        EXPECT_TRUE(labels.insert(entry.label).second) << entry.label;
        if (entry.moduleWord == Interface::kVoyageModuleWord) {
            EXPECT_EQ(entry.label, std::to_string(entry.Number()));
            EXPECT_EQ(entry.Number(), ++last);
        }
    }
    EXPECT_EQ(CommandLabel(Interface::kRemarkModuleWord, 9), "remark");
    EXPECT_EQ(CommandLabel(Interface::kRemarkModuleWord, 3), "unknown");
    EXPECT_EQ(CommandLabel(Interface::kVoyageModuleWord, static_cast<std::uint16_t>(last + 1)), "unknown");
    EXPECT_THAT(ReadDocument("server.md"),
                HasSubstr("`command`: 1 to " + std::to_string(last) + ", remark, unknown"));
}

TEST_F(CommandTableTest, HandlersTakeTheFormOfTheExamples) {
    for (const CommandEntry& entry : CommandTable()) {
        std::string request(entry.request);
        const std::size_t more = request.find(",…");
        if (more != std::string::npos) {
            request.erase(more, std::string(",…").size());
        }
        const int command = entry.moduleWord == Interface::kRemarkModuleWord ? kRemark : entry.Number();
        const int eid = Eid(Send(command, request, "anna"));
        EXPECT_TRUE(eid <= 0 || eid > static_cast<int>(ErrorCode::RequestTooLong)) << request << " " << eid;
    }
}

}  // namespace

}  // namespace Tarvik::Server
