// SPDX-License-Identifier: MIT
#pragma once

#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Server {

using TempFolder = TestSupport::TemporaryFolder;

}  // namespace Tarvik::Server
