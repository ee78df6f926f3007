// SPDX-License-Identifier: MIT
#include <atomic>
#include <cstdlib>

#include <tarvik/core/TObject.h>

#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Core {

namespace {

std::atomic<long> liveBlocks{0};

}  // namespace

TObject::~TObject() = default;

void* AllocateBusBlock(std::size_t bytes) {
    void* block = std::malloc(bytes == 0 ? 1 : bytes);
    if (block != nullptr) {
        ++liveBlocks;
    }
    return block;
}

void FreeBusBlock(void* block) {
    if (block == nullptr) {
        return;
    }
    --liveBlocks;
    std::free(block);
}

long BusTesting::LiveBlocks() {
    return liveBlocks;
}

}  // namespace Tarvik::Core
