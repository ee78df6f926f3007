// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/plugin/BusClient.h"

namespace Tarvik::Seaplan {

namespace {

struct Handler {
    void* OnCall(void* input) {
        ++calls;
        return input;
    }
    int calls = 0;
};

class BusClientTest : public testing::Test {
  protected:
    Core::TrvKernel* kernel = Core::TrvKernel::Instance();
    Handler handler;
};

TEST_F(BusClientTest, OfferedServiceAnswersUntilItIsWithdrawn) {
    BusClient client;
    EXPECT_TRUE(client.Offer<&Handler::OnCall>("TRV_S_TEST", &handler));
    int input = 0;
    void* result = nullptr;
    EXPECT_TRUE(kernel->CallTrvService("TRV_S_TEST", &input, result));
    EXPECT_EQ(result, &input);
    client.Withdraw();
    EXPECT_FALSE(kernel->CallTrvService("TRV_S_TEST", &input, result));
}

TEST_F(BusClientTest, SecondHandlerOfAServiceIsRefusedAndTheFirstStays) {
    BusClient first;
    BusClient second;
    EXPECT_TRUE(first.Offer<&Handler::OnCall>("TRV_S_TEST", &handler));
    EXPECT_FALSE(second.Offer<&Handler::OnCall>("TRV_S_TEST", &handler));
    second.Withdraw();
    EXPECT_TRUE(kernel->IsBound("TRV_S_TEST"));
}

TEST_F(BusClientTest, SubscriptionsEndWithTheirOwner) {
    {
        BusClient client;
        EXPECT_TRUE(client.Announce<&Handler::OnCall>("TRV_MAP_TEST", &handler));
        EXPECT_TRUE(client.Subscribe<&Handler::OnCall>("TRV_E_TEST", &handler));
        kernel->RaiseTrvEvent("TRV_MAP_TEST", nullptr);
        kernel->RaiseTrvEvent("TRV_E_TEST", nullptr);
        EXPECT_EQ(handler.calls, 2);
    }
    EXPECT_FALSE(kernel->IsBound("TRV_MAP_TEST"));
    EXPECT_FALSE(kernel->IsBound("TRV_E_TEST"));
}

}  // namespace
}  // namespace Tarvik::Seaplan
