// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Client {

/// What is wrong with a library's file before it is opened; empty when nothing is. A loader maps the file and
/// would die on the pages that a cut file lacks, so its parts must lie within it.
std::string FaultOfLibraryFile(const std::string& file);

}  // namespace Tarvik::Client
