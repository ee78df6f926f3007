// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace Tarvik::TestSupport {

/// Gives Qt's platform without a display one screen of an ordinary size in place of its own of 800 by 800
/// pixels, on which panels would not open where they do at work. Made before the application, and kept until
/// it is gone; nothing on a real display.
class OffscreenScreen {
  public:
    OffscreenScreen() {
        const char* platform = std::getenv("QT_QPA_PLATFORM");
        if (platform == nullptr || std::string_view(platform) != "offscreen") {
            return;
        }
        file_ = std::filesystem::temp_directory_path() / ("screen-" + std::to_string(getpid()) + ".json");
        std::ofstream(file_)
            << R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1920, "height": 1080,
                                "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
        setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + file_.string()).c_str(), 1);
    }
    ~OffscreenScreen() {
        std::error_code failed;
        std::filesystem::remove(file_, failed);
    }
    OffscreenScreen(const OffscreenScreen&) = delete;
    OffscreenScreen& operator=(const OffscreenScreen&) = delete;

  private:
    std::filesystem::path file_;
};

}  // namespace Tarvik::TestSupport
