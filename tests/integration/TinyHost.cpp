// SPDX-License-Identifier: MIT
#include "tests/integration/TinyHost.h"

#include <dlfcn.h>
#include <tarvik/util/FileUtl.h>

#include <cstdlib>
#include <iostream>

namespace Tarvik::Integration {

namespace {

template <class Function>
void find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
}

}  // namespace

LoadedPlugin::LoadedPlugin() : library_(dlopen(SEAPLAN_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
    if (library_ == nullptr) {
        std::cerr << dlerror() << '\n';
        std::abort();
    }
    find(library_, "Load", load);
    find(library_, "UnLoad", unload);
    find(library_, "PluginInfo", info);
    find(library_, "InitPlugin", init);
    find(library_, "SuiteLoaded", suiteLoaded);
    find(library_, "CheckEnvironment", checkEnvironment);
}

const LoadedPlugin& LoadedPlugin::Get() {
    static const LoadedPlugin plugin;
    return plugin;
}

TinyHost::TinyHost()
    : dictionary(TestSupport::PortDictionary::Ports{{"A", "40001"}, {"B", "40002"}}),
      folder_(
          std::filesystem::temp_directory_path() /
          (std::string("seaplan-host-") + testing::UnitTest::GetInstance()->current_test_info()->name())) {
    std::filesystem::create_directories(folder_ / "businessdata");
    std::filesystem::copy_file(SEAPLAN_POINTS, folder_ / "businessdata" / "trvdb.db",
                               std::filesystem::copy_options::overwrite_existing);
    Util::FileUtl::SetCurrentAppDirectory(folder_.string());
}

TinyHost::~TinyHost() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

}  // namespace Tarvik::Integration
