// SPDX-License-Identifier: MIT
#pragma once

namespace Tarvik {

/// The SDK's version, which is that of the host to which plug-ins name their needs: "TRV,1.1.4". The build
/// reads it here for the libraries and the package.
inline constexpr const char* kSdkVersion = "1.1.4";

}  // namespace Tarvik
