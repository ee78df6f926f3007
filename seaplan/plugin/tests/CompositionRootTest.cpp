// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/core/TrvKernel.h>

#include "seaplan/plugin/CompositionRoot.h"
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
    const TestSupport::RecordingHost chart;
    auto* kernel = Core::TrvKernel::Instance();
    int notices = 0;
    kernel->SetObserver([&](Core::KernelNotice, const std::string&) { ++notices; });
    const char* const names[] = {"TRV_S_VOY_PLAN",
                                 "TRV_S_CAL_VOYAGE",
                                 "TRV_MAP_LCLICK_RPOINT",
                                 "TRV_MAP_LCLICK_RRPOINT",
                                 "TRV_MAP_LCLICK_VOYAGETYPE",
                                 "TRV_MAP_LCLICK_RPOINTTYPE",
                                 "TRV_MAP_LCLICK_AISSHIPTYPE"};
    for (int round = 0; round < 2; ++round) {
        {
            VoyageStore store;
            CompositionRoot root(&store);
            root.OfferServices();
            for (const char* name : names) {
                EXPECT_TRUE(kernel->IsBound(name)) << name;
            }
        }
        for (const char* name : names) {
            EXPECT_FALSE(kernel->IsBound(name)) << name;
        }
    }
    kernel->SetObserver({});
    EXPECT_EQ(notices, 0);
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
