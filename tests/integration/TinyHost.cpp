// SPDX-License-Identifier: MIT
#include "tests/integration/TinyHost.h"

#include <cstdlib>
#include <dlfcn.h>
#include <iostream>

namespace Tarvik::Integration {

namespace {

template <class Function>
void Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
}

}  // namespace

LoadedPlugin::LoadedPlugin(const std::string& file) : library_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (library_ == nullptr) {
        std::cerr << dlerror() << '\n';
        std::abort();
    }
    Find(library_, "Load", load);
    Find(library_, "UnLoad", unload);
    Find(library_, "PluginInfo", info);
    Find(library_, "InitPlugin", init);
    Find(library_, "SuiteLoaded", suiteLoaded);
    Find(library_, "CheckEnvironment", checkEnvironment);
}

void LoadedPlugin::Close() const {
    dlclose(library_);
}

const LoadedPlugin& LoadedPlugin::Get() {
    static const LoadedPlugin plugin(SEAPLAN_LIBRARY);
    return plugin;
}

TinyHost::TinyHost() : dictionary(TestSupport::PortDictionary::Ports{{"A", "40001"}, {"B", "40002"}}) {
    folder.WriteSamplePoints();
}

}  // namespace Tarvik::Integration
