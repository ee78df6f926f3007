// SPDX-License-Identifier: MIT
#include "bench/Memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

std::size_t inUse = 0;
std::size_t most = 0;

}  // namespace

// One thread runs the benchmarks that link this.
void* operator new(std::size_t size) {
    void* block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    inUse += malloc_usable_size(block);
    most = std::max(most, inUse);
    return block;
}

void operator delete(void* block) noexcept {
    if (block == nullptr) {
        return;
    }
    inUse -= malloc_usable_size(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}

namespace Bench {

MemoryMark::MemoryMark() : before_(inUse) {
    most = inUse;
}

std::size_t MemoryMark::Peak() const {
    return most - before_;
}

}  // namespace Bench
