// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

#include <gtest/gtest.h>

namespace Tarvik::TestSupport {

/// A plug-in's library, as the client opens it.
class LoadedPlugin {
  public:
    explicit LoadedPlugin(const char* file) : library_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
        const char* error = library_ != nullptr ? nullptr : dlerror();
        EXPECT_NE(library_, nullptr) << (error != nullptr ? error : "");
    }
    /// Calls an export.
    template <class Result>
    Result Call(const char* name) const {
        auto* function = reinterpret_cast<Result (*)()>(dlsym(library_, name));
        EXPECT_NE(function, nullptr) << name;
        return function();
    }

  private:
    void* library_;
};

}  // namespace Tarvik::TestSupport
