// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

#include <gtest/gtest.h>

#include <tarvik/core/TrvKernel.h>

namespace Tarvik::TestSupport {

/// Makes an owner twice, one behind the other, and expects the names on the bus as long as each lives, free
/// behind it, and no complaint of the bus.
template <class Make>
void ExpectNamesGoWithTheirOwner(std::span<const char* const> names, Make make) {
    auto* kernel = Core::TrvKernel::Instance();
    int notices = 0;
    kernel->SetObserver([&](Core::KernelNotice, const std::string&) { ++notices; });
    for (int round = 0; round < 2; ++round) {
        {
            const auto owner = make();
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

}  // namespace Tarvik::TestSupport
