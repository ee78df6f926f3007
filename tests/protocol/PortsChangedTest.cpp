// SPDX-License-Identifier: MIT
// What a change of own ports does at once in the chart, the port search and the voyage plug-in.
#include <QAction>
#include <QMenu>
#include <QTreeWidget>
#include <algorithm>

#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/interface/PlanRecords.h>

#include "host/client/places/tests/OwnPortFixture.h"
#include "host/plugins/infosearch/window/SearchDesk.h"
#include "host/plugins/seamap/widget/ChartServices.h"
#include "host/plugins/seamap/widget/ChartTools.h"
#include "seaplan/data/VoyageStore.h"
#include "seaplan/plugin/CompositionRoot.h"

namespace Tarvik::Client {

namespace {

namespace Bus = Interface::Bus;

class PortsChangedTest : public OwnPortFixture {
  protected:
    void SetUp() override {
        OwnPortFixture::SetUp();
        const std::string table = session_->Folders().BusinessData("trvdb.db");
        chart_ = std::make_unique<Seamap::ChartServices>(Seamap::ChartServices::Paths{table, ""});
        chart_->Widget()->resize(600, 400);
        search_ = std::make_unique<InfoSearch::SearchDesk>(table);
        voyages_ = std::make_unique<Seaplan::CompositionRoot>(&store_);
        voyages_->OfferServices();
        voyages_->Ports().ReadNames();
        // All of them have read the table before the change.
        EXPECT_EQ(FirstMatch("Berth"), FirstMatch("Berth"));
        const std::string singapore = IdOf("Singapore");
        EXPECT_NE(Interface::Call(Bus::MapGetPort, &singapore), nullptr);
        EXPECT_NE(Nearest(), "Berth 7");
        Toggle();
    }
    void TearDown() override {
        voyages_.reset();
        search_.reset();
        chart_.reset();
        OwnPortFixture::TearDown();
    }
    std::string FirstMatch(const std::string& text) {
        const Interface::MatchPortQuery query{&field_, &editor_, text, false};
        auto* window = reinterpret_cast<QWidget*>(Interface::Call(Bus::MatchPorts, &query));
        const auto* tree = dynamic_cast<QTreeWidget*>(window);
        return tree == nullptr ? std::string() : tree->topLevelItem(0)->text(0).toStdString();
    }
    /// What the chart's menu tells of the port nearest to the berth.
    std::string Nearest() {
        chart_->Widget()->Tools().OpenMenu({4.05, 51.98}, QPoint(10, 10));
        auto* menu = chart_->Widget()->findChildren<QMenu*>("chartMenu").back();
        const std::string text = menu->findChild<QAction*>("nearestPort")->text().toStdString();
        delete menu;
        return text.find("Berth 7") != std::string::npos ? "Berth 7" : text;
    }
    const Interface::PlanResult* Plan() {
        request_.ports = {{"Singapore", "", 12.0F, 0.0F, 6.0F}, {"Berth 7", "", 12.0F, 0.0F, 0.0F}};
        request_.start = Util::_datetime_t(0, 0, 8, 1, 3, 2030);
        return Interface::Call(Bus::PlanVoyage, &std::as_const(request_));
    }

    QWidget editor_;
    QLineEdit field_{&editor_};
    Interface::PlanRequest request_;
    Seaplan::VoyageStore store_;
    std::unique_ptr<Seamap::ChartServices> chart_;
    std::unique_ptr<InfoSearch::SearchDesk> search_;
    std::unique_ptr<Seaplan::CompositionRoot> voyages_;
};

TEST_F(PortsChangedTest, ANewPortIsFoundOnTheChartInTheSearchAndByAVoyage) {
    EXPECT_FALSE(voyages_->Ports().Knows("Berth 7"));
    EXPECT_EQ(Plan()->code, Interface::PlanUnknownPort);
    Add("Berth 7", "51 58.8N 4 3E");
    ASSERT_FALSE(Form().isVisible()) << Fault().toStdString();
    const std::string id = IdOf("Berth 7");
    const Interface::TrvMapPort* port = Interface::Call(Bus::MapGetPort, &id);
    ASSERT_NE(port, nullptr) << "the chart reads its table again";
    EXPECT_EQ(Nearest(), "Berth 7");
    EXPECT_EQ(FirstMatch("Berth 7 "), "Berth 7");
    EXPECT_EQ(FirstMatch("berth"), "Berth 7");
    EXPECT_TRUE(voyages_->Ports().Knows("Berth 7"));
    EXPECT_EQ(voyages_->Ports().NameOf("BERTH 7"), "Berth 7");
    const Interface::PlanResult* plan = Plan();
    ASSERT_EQ(plan->code, Interface::PlanDone) << plan->step;
    EXPECT_EQ(plan->rows.back().portId, id);
    EXPECT_GT(plan->rows.back().distance, 7000);
    EXPECT_LT(plan->rows.back().distance, 10000);
}

TEST_F(PortsChangedTest, APortThatIsRemovedIsFoundNoMore) {
    Add("Berth 7", "51 58.8N 4 3E");
    const std::string id = IdOf("Berth 7");
    Table().selectRow(0);
    sink_.Answer(Interface::SysMsgHandleRes::Yes);
    Press("ownPortRemove");
    EXPECT_EQ(Interface::Call(Bus::MapGetPort, &id), nullptr);
    EXPECT_NE(FirstMatch("berth"), "Berth 7");
    EXPECT_FALSE(voyages_->Ports().Knows("Berth 7"));
    EXPECT_EQ(Plan()->code, Interface::PlanUnknownPort);
}

TEST_F(PortsChangedTest, APortWithAChineseNameIsFoundByIt) {
    Toggle();
    Toggle();
    Press("ownPortAdd");
    Part<QLineEdit>("ownPortName").setText("七号泊位");
    Type("ownPortPlace", "51 58.8N 4 3E");
    Press("ownPortSave");
    EXPECT_EQ(FirstMatch("七号"), "七号泊位");
    EXPECT_EQ(voyages_->Ports().NameOf("七号泊位"), "七号泊位");
}

TEST_F(PortsChangedTest, AClickOnTheChartOpensTheFormAtItsPlace) {
    chart_->Widget()->Tools().OpenMenu({4.05, 51.98}, QPoint(10, 10));
    auto* menu = chart_->Widget()->findChildren<QMenu*>("chartMenu").back();
    auto* item = menu->findChild<QAction*>("addOwnPort");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(), QString::fromUtf8("Add a port here…"));
    item->trigger();
    ASSERT_TRUE(Form().isVisible());
    EXPECT_EQ(Part<QLineEdit>("ownPortPlace").text(), QString::fromUtf8("51° 58.80' N 004° 03.00' E"));
    EXPECT_TRUE(Part<QLineEdit>("ownPortName").text().isEmpty());
}

TEST_F(PortsChangedTest, WithoutTheClientsServiceTheChartOffersNoPort) {
    desk_.reset();
    chart_->Widget()->Tools().OpenMenu({4.05, 51.98}, QPoint(10, 10));
    const auto* menu = chart_->Widget()->findChildren<QMenu*>("chartMenu").back();
    EXPECT_EQ(menu->findChild<QAction*>("addOwnPort"), nullptr);
}

}  // namespace

}  // namespace Tarvik::Client
