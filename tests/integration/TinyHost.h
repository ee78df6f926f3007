// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <tarvik/core/PluginInfo.h>

#include "testsupport/DataFolder.h"
#include "testsupport/ManualClock.h"
#include "testsupport/PortDictionary.h"
#include "testsupport/RecordingHost.h"

namespace Tarvik::Integration {

/// The plug-in as a host sees it: a library file and six names.
class LoadedPlugin {
  public:
    /// Loads the library once for the process; it stays until the end, as in the client.
    static const LoadedPlugin& Get();
    /// Loads the library of this path; the process ends when it is none.
    explicit LoadedPlugin(const std::string& file);

    /// Gives the library file up, as a host may after `unload`.
    void Close() const;

    bool (*load)() = nullptr;
    bool (*unload)() = nullptr;
    Plugin::CPluginInfo* (*info)() = nullptr;
    void (*init)() = nullptr;
    void (*suiteLoaded)() = nullptr;
    bool (*checkEnvironment)() = nullptr;

  private:
    void* library_ = nullptr;
};

/// A host around the loaded plug-in: recorded services, a clock that stands, a data folder of its own.
class TinyHost : public testing::Test {
  protected:
    TinyHost();

    TestSupport::DataFolder folder;
    TestSupport::ManualClock clock;
    TestSupport::RecordingHost host;
    TestSupport::PortDictionary dictionary;
    const LoadedPlugin& plugin = LoadedPlugin::Get();
};

}  // namespace Tarvik::Integration
