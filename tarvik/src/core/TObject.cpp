// SPDX-License-Identifier: MIT
#include <tarvik/core/TObject.h>

namespace Tarvik::Core {

TObject::~TObject() = default;

}  // namespace Tarvik::Core
