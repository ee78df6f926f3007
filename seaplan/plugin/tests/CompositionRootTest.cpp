// SPDX-License-Identifier: MIT
#include <memory>

#include <gtest/gtest.h>

#include <tarvik/core/TrvKernel.h>

#include "seaplan/plugin/CompositionRoot.h"
#include "testsupport/BoundNames.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Seaplan {

namespace {

TEST(CompositionRootTest, InstancesAnswerWithTheSameObjects) {
    CompositionRoot& root = CompositionRoot::Instance();
    EXPECT_EQ(VoyCatalogModule::Instance(), &root.CatalogModule());
    EXPECT_EQ(VoyCatalogController::Instance(), &root.Catalog());
    EXPECT_EQ(VoyPortCallModule::Instance(), &root.PortCallModule());
    EXPECT_EQ(VoyController::Instance(), &root.Voyages());
    EXPECT_EQ(&VoyController::Instance()->Module(), VoyPortCallModule::Instance());
}

TEST(CompositionRootTest, ControllersShareTheStore) {
    const TestSupport::RecordingHost host;
    VoyageStore store;
    CompositionRoot root(&store);
    store.voyages["9"].modais = 3;
    int count = 0;
    EXPECT_EQ(root.Voyages().GetModAis("9", count), 0);
    EXPECT_EQ(count, 3);
    int state = 0;
    store.categoryVoyages["1"]["9"] = Destroyed;
    EXPECT_EQ(root.Catalog().GetVoyageState("9", state), 0);
    EXPECT_EQ(state, Destroyed);
}

TEST(CompositionRootTest, EveryNameGoesWithItsOwner) {
    struct Owner {
        Owner() { root.OfferServices(); }
        VoyageStore store;
        CompositionRoot root{&store};
    };
    const TestSupport::RecordingHost chart;
    const char* const names[] = {"TRV_S_VOY_PLAN",
                                 "TRV_S_CAL_VOYAGE",
                                 "TRV_MAP_LCLICK_RPOINT",
                                 "TRV_MAP_LCLICK_RRPOINT",
                                 "TRV_MAP_LCLICK_VOYAGETYPE",
                                 "TRV_MAP_LCLICK_RPOINTTYPE",
                                 "TRV_MAP_LCLICK_AISSHIPTYPE"};
    TestSupport::ExpectNamesGoWithTheirOwner(names, [] { return std::make_unique<Owner>(); });
}

TEST(CompositionRootTest, ServicesAreOfferedOnce) {
    const TestSupport::RecordingHost chart;
    VoyageStore store;
    CompositionRoot root(&store);
    int notices = 0;
    Core::TrvKernel::Instance()->SetObserver([&](Core::KernelNotice, const std::string&) { ++notices; });
    root.OfferServices();
    root.OfferServices();
    EXPECT_TRUE(Core::TrvKernel::Instance()->IsBound("TRV_S_VOY_PLAN"));
    Core::TrvKernel::Instance()->SetObserver({});
    EXPECT_EQ(notices, 0);
}

}  // namespace
}  // namespace Tarvik::Seaplan
