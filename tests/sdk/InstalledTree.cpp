// SPDX-License-Identifier: MIT
#include "tests/sdk/InstalledTree.h"

#include <stdexcept>

namespace Tarvik::Sdk {

InstalledTree::InstalledTree() {
    const std::string sample = folder_.File("sample");
    Do({CMAKE_PROGRAM, "--install", BUILD_FOLDER, "--prefix", File("")});
    Do({CMAKE_PROGRAM, "-S", SAMPLE_FOLDER, "-B", sample, "-DCMAKE_PREFIX_PATH=" + File("")});
    Do({CMAKE_PROGRAM, "--build", sample});
    Do({CMAKE_PROGRAM, "--install", sample});
}

void InstalledTree::Do(const std::vector<std::string>& words) const {
    Programs::ChildProcess::Start start;
    start.words = words;
    const Programs::Ended ended = Programs::RunToEnd(start);
    if (ended.exitCode != 0) {
        throw std::runtime_error(words[1] + " failed:\n" + ended.out + ended.err);
    }
}

Programs::Ended InstalledTree::RunClient(const std::vector<std::string>& words) const {
    Programs::ChildProcess::Start start;
    start.words = {File("bin/tarvik"), "--data", folder_.File("data")};
    start.words.insert(start.words.end(), words.begin(), words.end());
    // Libraries of the window system keep memory to the end, which is no finding here.
    start.environment = {{"ASAN_OPTIONS", "detect_leaks=0"}};
    return Programs::RunToEnd(start);
}

}  // namespace Tarvik::Sdk
