// SPDX-License-Identifier: MIT
#include "host/client/plugins/PluginLibrary.h"

#include <dlfcn.h>
#include <exception>

#include "host/client/plugins/LibraryFile.h"

namespace Tarvik::Client {

namespace {

/// Calls into a plug-in; an exception that crosses its border counts as its failure.
template <class Function>
bool Guarded(const char* what, std::string& error, Function call) {
    try {
        return call();
    } catch (const std::exception& thrown) {
        error = std::string(what) + " failed: " + thrown.what();
    } catch (...) {
        error = std::string(what) + " failed with an unknown exception";
    }
    return false;
}

}  // namespace

template <class Function>
void PluginLibrary::Find(const char* name, Function*& found, std::string& error) const {
    found = reinterpret_cast<Function*>(dlsym(handle_, name));
    if (!found && error.empty()) {
        error = std::string("the export ") + name + " is missing";
    }
}

bool PluginLibrary::Open(const std::string& file, std::string& error) {
    error = FaultOfLibraryFile(file);
    if (!error.empty()) {
        return false;
    }
    handle_ = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!handle_) {
        const char* text = dlerror();
        error = std::string("cannot be opened as a library: ") + (text ? text : file.c_str());
        return false;
    }
    Find("Load", load_, error);
    Find("UnLoad", unLoad_, error);
    Find("PluginInfo", info_, error);
    Find("InitPlugin", init_, error);
    Find("SuiteLoaded", suiteLoaded_, error);
    Find("CheckEnvironment", checkEnvironment_, error);
    return error.empty();
}

const Plugin::CPluginInfo* PluginLibrary::Info(std::string& error) const {
    const Plugin::CPluginInfo* info = nullptr;
    Guarded("PluginInfo", error, [&] { return (info = info_()) != nullptr; });
    if (!info && error.empty()) {
        error = "it gives no description record";
    }
    return info;
}

bool PluginLibrary::Load(std::string& error) const {
    if (!Guarded("CheckEnvironment", error, checkEnvironment_)) {
        if (error.empty()) {
            error = "it refuses this environment";
        }
        return false;
    }
    if (!Guarded("Load", error, load_)) {
        if (error.empty()) {
            error = "its Load reports a failure";
        }
        return false;
    }
    return true;
}

bool PluginLibrary::Init(std::string& error) const {
    return Guarded("InitPlugin", error, [this] { return init_(), true; });
}

bool PluginLibrary::SuiteLoaded(std::string& error) const {
    return Guarded("SuiteLoaded", error, [this] { return suiteLoaded_(), true; });
}

void PluginLibrary::UnLoad() const {
    std::string ignored;
    Guarded("UnLoad", ignored, unLoad_);
}

const char* PluginLibrary::Suffix() {
    return ".so";
}

}  // namespace Tarvik::Client
