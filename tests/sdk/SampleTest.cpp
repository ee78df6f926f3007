// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QLabel>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include <gmock/gmock.h>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>

#include "host/client/plugins/PluginLoader.h"
#include "tests/sdk/InstalledTree.h"

namespace Tarvik::Sdk {

namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

std::string ContentOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    EXPECT_TRUE(in) << file;
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

QWidget* AnchorPanel() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "anchorPanel") {
            return widget;
        }
    }
    return nullptr;
}

/// One installed tree serves all tests, since building the sample takes seconds.
class InstalledSdk : public testing::Test {
  protected:
    static void SetUpTestSuite() { tree_ = std::make_unique<InstalledTree>(); }
    static void TearDownTestSuite() { tree_.reset(); }
    static const InstalledTree& Tree() { return *tree_; }

  private:
    static std::unique_ptr<InstalledTree> tree_;
};
std::unique_ptr<InstalledTree> InstalledSdk::tree_;

}  // namespace

TEST_F(InstalledSdk, TheSamplesServiceAnswersAndItsPanelOpensAndCloses) {
    int argc = 1;
    char name[] = "sdk_sample_test";
    char* argv[] = {name, nullptr};
    const QApplication application(argc, argv);
    Client::PluginLoader loader;
    loader.LoadAll({Tree().Plugins() + "/libanchor.so"}, Core::Version::Parse(Plugin::kHostVersion));
    ASSERT_THAT(loader.Complaints(), testing::IsEmpty());
    ASSERT_TRUE(loader.IsRunning("PlgAnchor"));

    constexpr Interface::Service<const double, const double> kChain{"ANCHOR_S_CHAIN"};
    const double depth = 20;
    const double* chain = Interface::Call(kChain, &depth);
    ASSERT_NE(chain, nullptr);
    EXPECT_EQ(*chain, 120);

    EXPECT_EQ(AnchorPanel(), nullptr);
    const Interface::PanelShow show{100, 0};
    Interface::Raise(Interface::Bus::ShowPanel, &show);
    ASSERT_NE(AnchorPanel(), nullptr);
    EXPECT_TRUE(AnchorPanel()->isVisible());
    const auto labels = AnchorPanel()->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(),
                            [](const QLabel* label) { return label->text().contains("120 m of chain"); }));
    Interface::Raise(Interface::Bus::ShowPanel, &show);
    EXPECT_FALSE(AnchorPanel()->isVisible());

    loader.UnloadAll();
    EXPECT_EQ(AnchorPanel(), nullptr);
    EXPECT_FALSE(Core::TrvKernel::Instance()->IsBound(kChain.name));
}

TEST_F(InstalledSdk, TheInstalledClientPlansWithItsPluginsAndTheSample) {
    const Programs::Ended ended = Tree().RunClient({"plan", "Rotterdam", "Singapore", "--speed", "14"});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_THAT(ended.out, HasSubstr("Singapore"));
    const std::string log = ContentOf(Tree().Data("seaplan.log"));
    for (const char* plugin : {"plug-in PlgAnchor 1.0 runs", "plug-in PlgSeamap 1.1.0.0 runs"}) {
        EXPECT_THAT(log, HasSubstr(plugin));
    }
    EXPECT_THAT(log, testing::Not(HasSubstr("left out")));
}

TEST_F(InstalledSdk, TheInstalledClientShowsItsWindow) {
    const Programs::Ended ended =
        Tree().RunClient({"--screenshot", Tree().Other("window.png"), "--panel", "3"});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_TRUE(fs::exists(Tree().Other("window.png")));
    const std::string log = ContentOf(Tree().Data("seaplan.log"));
    EXPECT_THAT(log, testing::Not(HasSubstr("language file")));
}

TEST_F(InstalledSdk, ShipsTheServerWithItsNetworkAndTheSdksHeadersAlone) {
    EXPECT_TRUE(fs::exists(Tree().File("bin/seaplan-server")));
    EXPECT_TRUE(fs::exists(Tree().File("share/seaplan/network.bin")));
    EXPECT_FALSE(fs::exists(Tree().File("include/host")));
    EXPECT_FALSE(fs::exists(Tree().File("include/seaplan")));
}

TEST(PluginGuide, QuotesTheSampleAsItIsBuilt) {
    const std::string guide = ContentOf(PLUGIN_GUIDE);
    for (const char* name : {"CMakeLists.txt", "Anchor.cpp"}) {
        const std::string text = ContentOf(std::string(SAMPLE_FOLDER) + "/" + name);
        // Without the licence line, which only files of this tree carry.
        const std::string quoted = text.substr(text.find('\n') + 1);
        EXPECT_NE(guide.find("\n" + quoted + "```"), std::string::npos) << name;
    }
}

}  // namespace Tarvik::Sdk
