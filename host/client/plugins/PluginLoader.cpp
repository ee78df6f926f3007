// SPDX-License-Identifier: MIT
#include "host/client/plugins/PluginLoader.h"

#include <algorithm>
#include <filesystem>

#include <tarvik/core/Exports.h>

namespace fs = std::filesystem;

namespace Tarvik::Client {

std::vector<std::string> PluginLoader::FindLibraries(const std::string& folder) {
    std::vector<std::string> files;
    std::error_code failed;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        const fs::path& path = it->path();
        if (path.extension() == PluginLibrary::Suffix() && !path.stem().string().starts_with("libtarvik")) {
            files.push_back(path.string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void PluginLoader::Fail(LoadedPlugin& plugin, const std::string& error) {
    plugin.state = PluginState::Failed;
    plugin.error = error;
}

void PluginLoader::Read(const std::string& file) {
    LoadedPlugin plugin;
    plugin.record.file = file;
    plugin.record.name = fs::path(file).stem().string();
    plugin.library = std::make_shared<PluginLibrary>();
    std::string& error = plugin.record.error;
    const Plugin::CPluginInfo* info =
        plugin.library->Open(file, error) ? plugin.library->Info(error) : nullptr;
    if (info && info->name.empty()) {
        error = "its description record has no name";
    } else if (info) {
        plugin.record.name = info->name;
        try {
            plugin.record.version = Core::Version::Parse(info->version);
            plugin.record.dependencies = info->dependencies.Entries();
            plugin.state = PluginState::Read;
        } catch (const Core::InvalidVersionFormatException& bad) {
            error = "its version \"" + info->version + "\" is none: " + bad.what();
        }
    }
    plugins_.push_back(std::move(plugin));
}

std::string PluginLoader::MissingNeed(const LoadedPlugin& plugin) const {
    const auto there = [&](const std::string& name) {
        return name == Plugin::kHostName || std::any_of(loaded_.begin(), loaded_.end(), [&](std::size_t i) {
                   return plugins_[i].record.name == name && plugins_[i].state != PluginState::Failed;
               });
    };
    for (const Plugin::PluginDependency& need : plugin.record.dependencies) {
        if (!there(need.name)) {
            return need.name;
        }
    }
    return {};
}

void PluginLoader::LoadOne(std::size_t index) {
    LoadedPlugin& plugin = plugins_[index];
    if (const std::string need = MissingNeed(plugin); !need.empty()) {
        return Fail(plugin, "needs " + need + ", which could not be loaded");
    }
    plugin.state = PluginState::Resolved;
    std::string error;
    if (!plugin.library->Load(error)) {
        return Fail(plugin, error);
    }
    plugin.state = PluginState::Loaded;
    loaded_.push_back(index);
}

void PluginLoader::StepAll(bool (PluginLibrary::*step)(std::string&) const, PluginState reached) {
    std::string error;
    for (std::size_t index : loaded_) {
        LoadedPlugin& plugin = plugins_[index];
        if (const std::string need = MissingNeed(plugin); !need.empty()) {
            Fail(plugin, "needs " + need + ", which could not be started");
        } else if (!((*plugin.library).*step)(error)) {
            Fail(plugin, error);
        } else {
            plugin.state = reached;
        }
    }
    const auto failed = [this](std::size_t index) { return plugins_[index].state == PluginState::Failed; };
    for (auto it = loaded_.rbegin(); it != loaded_.rend(); ++it) {
        if (failed(*it)) {
            plugins_[*it].library->UnLoad();
        }
    }
    std::erase_if(loaded_, failed);
}

void PluginLoader::LoadAll(const std::vector<std::string>& files, const Core::Version& hostVersion) {
    for (const std::string& file : files) {
        Read(file);
    }
    std::vector<PluginRecord> records;
    for (const LoadedPlugin& plugin : plugins_) {
        records.push_back(plugin.record);
    }
    const LoadOrder plan = ResolveLoadOrder(records, hostVersion);
    for (const RejectedPlugin& rejected : plan.rejected) {
        Fail(plugins_[rejected.index], rejected.reason);
    }
    for (std::size_t index : plan.order) {
        LoadOne(index);
    }
    StepAll(&PluginLibrary::Init, PluginState::Loaded);
    StepAll(&PluginLibrary::SuiteLoaded, PluginState::Running);
}

void PluginLoader::UnloadAll() {
    for (auto it = loaded_.rbegin(); it != loaded_.rend(); ++it) {
        plugins_[*it].library->UnLoad();
    }
    loaded_.clear();
}

bool PluginLoader::IsRunning(const std::string& name) const {
    return std::any_of(plugins_.begin(), plugins_.end(), [&](const LoadedPlugin& plugin) {
        return plugin.state == PluginState::Running && plugin.record.name == name;
    });
}

std::vector<std::string> PluginLoader::Complaints() const {
    std::vector<std::string> lines;
    for (const LoadedPlugin& plugin : plugins_) {
        if (plugin.state == PluginState::Failed) {
            lines.push_back(plugin.record.name + ": " + plugin.error);
        }
    }
    return lines;
}

}  // namespace Tarvik::Client
