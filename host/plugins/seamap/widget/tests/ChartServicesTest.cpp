// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <memory>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/interface/LoadString.h>

#include "host/plugins/seamap/widget/ChartServices.h"
#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Seamap {

namespace {

namespace Chart = Interface::Bus;
using Interface::Call;

/// Hears an event and keeps what it carried.
struct Listener : Core::TObject {
    void* Hear(void* input) {
        ids.push_back(*static_cast<const std::string*>(input));
        return nullptr;
    }
    void* HearPlace(void* input) {
        const auto* place = static_cast<const double*>(input);
        places.push_back({place[0], place[1]});
        return nullptr;
    }
    std::vector<std::string> ids;
    std::vector<GeoPoint> places;
    Core::TEvent delegate;
};

/// A language that names one water. In force while it lives.
class OneWater final : public Interface::LanguageSource {
  public:
    OneWater() { Set(this); }
    ~OneWater() override { Set(nullptr); }
    OneWater(const OneWater&) = delete;
    OneWater& operator=(const OneWater&) = delete;

    std::u16string text = u"North Sea";
    std::optional<std::u16string> Find(const std::u16string& section, const std::u16string&,
                                       const std::u16string& key) const override {
        return section == u"Waters" && key == u"NORTH_SEA" ? std::optional(text) : std::nullopt;
    }
};

class ChartServicesTest : public ::testing::Test {
  protected:
    ChartServicesTest() {
        Core::BusTesting::ForgetAll();
        services_ = std::make_unique<ChartServices>(ChartServices::Paths{"missing.db", "missing.bin"});
    }
    ~ChartServicesTest() override {
        services_.reset();
        Core::BusTesting::ForgetAll();
    }
    ChartWidget& Chart() {
        ChartWidget* widget = services_->Widget();
        widget->setProperty("pictures", true);
        widget->resize(800, 500);
        widget->show();
        return *widget;
    }
    static Interface::TrvMapExtent Extent() {
        Interface::TrvMapExtent* block = Call(Chart::MapGetExtent);
        const Interface::TrvMapExtent copy = *block;
        Core::FreeBusBlock(block);
        return copy;
    }
    static void SetExtent(const Interface::TrvMapExtent& value) { Call(Chart::MapSetExtent, &value); }
    static void AddLabel(const std::string& id, const std::string& type) {
        const Interface::TrvMapPointParams point{
            {"VOYAGE", id, type}, "Suez", "32,30", 0, "circle", 0x9664FF, 3};
        Call(Chart::MapAddPointLabel, &point);
    }
    static bool Command(const std::string& text) { return Call(Chart::ChartCommand, &text) != nullptr; }
    static void ExpectHolds(const Interface::TrvMapExtent& shown, double w, double s, double e, double n) {
        EXPECT_LE(shown.first, w);
        EXPECT_LE(shown.second, s);
        EXPECT_GE(shown.third, e);
        EXPECT_GE(shown.fourth, n);
    }

    std::unique_ptr<ChartServices> services_;
};

TEST_F(ChartServicesTest, ObjectsComeAndGoOverTheBus) {
    Interface::TrvMapLayerParams layer;
    layer.layer = "VOYAGE";
    Call(Chart::MapAddLayer, &std::as_const(layer));
    const Interface::TrvMapLineParams line{
        {"VOYAGE", "_0", "VOYLINETYPE"}, {"0,0", "10,10"}, 0x6464E9, 2, "solid"};
    Call(Chart::MapAddLine, &line);
    AddLabel("7", "VOYAGETYPE");
    const Interface::TrvMapImageReg image{"AIS_Ship", "/nowhere/ship.png"};
    Call(Chart::MapRegisterImage, &image);
    const Interface::TrvMapImageParams ship{{"VOYAGE", "v1", "AISSHIPTYPE"}, "AIS_Ship", "5,5"};
    Call(Chart::MapAddImage, &ship);
    const ChartObjects& objects = services_->Objects();
    EXPECT_TRUE(objects.HasLayer("VOYAGE"));
    EXPECT_EQ(objects.Count(), 3u);
    EXPECT_NE(objects.Find({"VOYAGE", "VOYLINETYPE", "_0"}), nullptr);
    EXPECT_NE(objects.Find({"VOYAGE", "AISSHIPTYPE", "v1"}), nullptr);
    EXPECT_EQ(objects.ImagePath("AIS_Ship"), "/nowhere/ship.png");

    const Interface::TrvMapObjectRef type{"VOYAGE", "", "VOYAGETYPE"};
    Call(Chart::MapDeleteObjectsByType, &type);
    EXPECT_EQ(objects.Find({"VOYAGE", "VOYAGETYPE", "7"}), nullptr);
    Interface::TrvMapObjectRef refs[] = {{"", "v1", "AISSHIPTYPE"}, {"", "v1_0", "AISSHIPTYPE"}};
    const Interface::TrvMapObjectList list{"VOYAGE", refs, 2};
    Call(Chart::MapDeleteObjects, &list);
    EXPECT_EQ(objects.Count(), 1u);
    const std::string name = "VOYAGE";
    Call(Chart::MapRemoveLayer, &name);
    EXPECT_EQ(objects.Count(), 0u);
    EXPECT_FALSE(objects.HasLayer("VOYAGE"));
}

TEST_F(ChartServicesTest, ShipsAreDrawnMetAndTakenAway) {
    ChartWidget& widget = Chart();
    const PixelPoint pixel = widget.View().ToScreen(GeoPoint{32, 30});
    const QPoint at(qRound(pixel.x), qRound(pixel.y));
    const QRgb sea = widget.grab().toImage().pixel(at);
    const Interface::TrvMapShips ships{"AISFEEDTYPE", {{"123456789", "ALPHA", 32, 30, 90, 0x2828B4}}};
    Call(Chart::MapSetShips, &ships);
    EXPECT_NE(widget.grab().toImage().pixel(at), sea);
    std::vector<std::string> ids;
    const auto clicks =
        Interface::Subscribe(Chart::ClickFeedShip, [&ids](const std::string& id) -> const char* {
            ids.push_back(id);
            return nullptr;
        });
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    EXPECT_EQ(ids, std::vector<std::string>{"123456789"});
    QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QApplication::sendEvent(&widget, &help);
    EXPECT_TRUE(QToolTip::text().startsWith("ALPHA\n")) << QToolTip::text().toStdString();
    const Interface::TrvMapShips none{"AISFEEDTYPE", {}};
    Call(Chart::MapSetShips, &none);
    QTest::mouseMove(&widget, {1, 1});
    EXPECT_EQ(widget.grab().toImage().pixel(at), sea);
}

TEST_F(ChartServicesTest, PointIsMetBeforeAShip) {
    Listener listener;
    listener.delegate.Set<&Listener::Hear>(&listener);
    Core::TrvKernel::Instance()->BindTrvEvent(Chart::ClickVoyageType.name, &listener.delegate);
    ChartWidget& widget = Chart();
    const Interface::TrvMapShips ships{"AISFEEDTYPE", {{"1", "", 32, 30, 90, 0}}};
    Call(Chart::MapSetShips, &ships);
    AddLabel("7", "VOYAGETYPE");
    const PixelPoint pixel = widget.View().ToScreen(GeoPoint{32, 30});
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {qRound(pixel.x), qRound(pixel.y)});
    EXPECT_EQ(listener.ids, std::vector<std::string>{"7"});
    Core::TrvKernel::Instance()->UnBindTrvEvent(Chart::ClickVoyageType.name, &listener.delegate);
}

TEST_F(ChartServicesTest, AClickRaisesTheEventOfTheTypeWithTheId) {
    Listener listener;
    listener.delegate.Set<&Listener::Hear>(&listener);
    auto* kernel = Core::TrvKernel::Instance();
    kernel->CreateTrvEvent(Chart::ClickVoyageType.name, &listener, "", "", nullptr);
    kernel->BindTrvEvent(Chart::ClickVoyageType.name, &listener.delegate);
    ChartWidget& widget = Chart();
    AddLabel("7", "VOYAGETYPE");
    const PixelPoint pixel = widget.View().ToScreen(GeoPoint{32, 30});
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {qRound(pixel.x), qRound(pixel.y)});
    EXPECT_EQ(listener.ids, std::vector<std::string>{"7"});
    AddLabel("8", "RPOINTTYPE");
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {qRound(pixel.x), qRound(pixel.y)});
    EXPECT_EQ(listener.ids.size(), 1u) << "the upper object is of another type";
    kernel->UnBindTrvEvent(Chart::ClickVoyageType.name, &listener.delegate);
}

TEST_F(ChartServicesTest, ThePointerRaisesItsPlace) {
    Listener listener;
    listener.delegate.Set<&Listener::HearPlace>(&listener);
    Core::TrvKernel::Instance()->BindTrvEvent(Chart::ChartCursor.name, &listener.delegate);
    ChartWidget& widget = Chart();
    const GeoPoint place = widget.View().ToGeo({200, 100});
    QTest::mouseMove(&widget, {200, 100});
    ASSERT_FALSE(listener.places.empty());
    EXPECT_NEAR(listener.places.back().x, place.x, 1e-9);
    EXPECT_NEAR(listener.places.back().y, place.y, 1e-9);
    Core::TrvKernel::Instance()->UnBindTrvEvent(Chart::ChartCursor.name, &listener.delegate);
}

TEST_F(ChartServicesTest, TheExtentIsReadInEitherCornerOrder) {
    Chart();
    SetExtent({126, 60, 90, 20});
    const auto first = Extent();
    ExpectHolds(first, 90, 20, 126, 60);
    SetExtent({-10, -10, 10, 10});
    ExpectHolds(Extent(), -10, -10, 10, 10);
    EXPECT_LT(Extent().third, 90);
    SetExtent({90, 20, 126, 60});
    EXPECT_EQ(Extent().first, first.first);
    EXPECT_EQ(Extent().fourth, first.fourth);
}

TEST_F(ChartServicesTest, TheExtentBlockBelongsToTheCaller) {
    const long before = Core::BusTesting::LiveBlocks();
    Interface::TrvMapExtent* one = Call(Chart::MapGetExtent);
    Interface::TrvMapExtent* two = Call(Chart::MapGetExtent);
    EXPECT_NE(one, two);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before + 2);
    Core::FreeBusBlock(one);
    Core::FreeBusBlock(two);
    EXPECT_EQ(Core::BusTesting::LiveBlocks(), before);
}

TEST_F(ChartServicesTest, AnExtentAskedForBeforeTheWindowIsShownThen) {
    EXPECT_EQ(Extent().first, -180);
    SetExtent({100, -10, 140, 30});
    EXPECT_EQ(Extent().first, 100);
    ChartWidget& widget = Chart();
    ExpectHolds(Extent(), 100, -10, 140, 30);
    EXPECT_LT(widget.Shown().Width(), 180);
}

TEST_F(ChartServicesTest, TheWidgetServiceAnswersTheOneWindow) {
    QWidget* first = Call(Chart::ChartWindow);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->objectName(), "chart");
    EXPECT_EQ(Call(Chart::ChartWindow), first);
}

TEST_F(ChartServicesTest, AWindowClosedByItsParentIsMadeAnew) {
    auto parent = std::make_unique<QWidget>();
    Call(Chart::ChartWindow)->setParent(parent.get());
    parent.reset();
    AddLabel("7", "VOYAGETYPE");
    QWidget* again = Call(Chart::ChartWindow);
    ASSERT_NE(again, nullptr);
    EXPECT_FALSE(again->grab().isNull());
}

TEST_F(ChartServicesTest, CommandsZoomFitAndSetTheTheme) {
    ChartWidget& widget = Chart();
    const auto size = widget.View().WorldSize();
    EXPECT_TRUE(Command("zoomin"));
    EXPECT_GT(widget.View().WorldSize(), size);
    EXPECT_TRUE(Command("zoomout"));
    EXPECT_TRUE(Command("zoomout"));
    EXPECT_LT(widget.View().WorldSize(), size);
    AddLabel("7", "VOYAGETYPE");
    EXPECT_TRUE(Command("fit"));
    EXPECT_LT(widget.Shown().Width(), 10);
    EXPECT_TRUE(Command("theme night"));
    EXPECT_EQ(widget.Theme(), ChartPalette::Theme::Night);
    for (const char* unknown : {"", "theme", "theme blue", "zoom", "Fit"}) {
        EXPECT_FALSE(Command(unknown)) << unknown;
    }
}

TEST_F(ChartServicesTest, AThemeSetBeforeTheWindowHolds) {
    EXPECT_TRUE(Command("theme dark"));
    EXPECT_EQ(services_->Widget()->Theme(), ChartPalette::Theme::Dark);
}

TEST_F(ChartServicesTest, EmptyPayloadsAndUnknownPortsAreAnsweredWithNothing) {
    for (const char* name :
         {Chart::MapAddLayer.name, Chart::MapRemoveLayer.name, Chart::MapAddLine.name,
          Chart::MapAddPointLabel.name, Chart::MapAddImage.name, Chart::MapRegisterImage.name,
          Chart::MapDeleteObjects.name, Chart::MapDeleteObjectsByType.name, Chart::MapSetExtent.name,
          Chart::MapGetPort.name, Chart::ChartCommand.name}) {
        void* result = nullptr;
        EXPECT_TRUE(Core::TrvKernel::Instance()->CallTrvService(name, nullptr, result)) << name;
        EXPECT_EQ(result, nullptr) << name;
    }
    const std::string id = "1";
    EXPECT_EQ(Call(Chart::MapGetPort, &id), nullptr);
}

TEST_F(ChartServicesTest, TakesEverythingBackAtTheEnd) {
    std::vector<std::string> notices;
    auto* kernel = Core::TrvKernel::Instance();
    kernel->SetObserver([&](Core::KernelNotice, const std::string& name) { notices.push_back(name); });
    services_.reset();
    kernel->SetObserver({});
    EXPECT_TRUE(notices.empty());
    EXPECT_FALSE(kernel->IsBound(Chart::MapAddLine.name));
    EXPECT_FALSE(kernel->IsBound(Chart::ChartWindow.name));
}

}  // namespace
TEST_F(ChartServicesTest, NamesOfWatersFollowTheLanguage) {
    OneWater language;
    ChartWidget& chart = Chart();
    SetExtent({-5, 50, 12, 62});
    const QImage english = chart.grab().toImage();
    language.text = u"北海";
    EXPECT_EQ(chart.grab().toImage(), english);
    Interface::Raise(Chart::SwitchLanguage);
    const QImage chinese = chart.grab().toImage();
    EXPECT_NE(chinese, english);
    language.text = u"";
    Interface::Raise(Chart::SwitchLanguage);
    EXPECT_NE(chart.grab().toImage(), chinese);
}

}  // namespace Tarvik::Seamap
