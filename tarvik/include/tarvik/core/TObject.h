// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/Export.h>

namespace Tarvik::Core {

/// Base of everything that owns services or events on the bus.
class TARVIK_API TObject {
  public:
    virtual ~TObject();
};

}  // namespace Tarvik::Core
