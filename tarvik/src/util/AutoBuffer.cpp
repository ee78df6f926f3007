// SPDX-License-Identifier: MIT
#include <cstdarg>

#include <tarvik/util/AutoBuffer.h>

#include "CLocale.h"

namespace Tarvik::Util {

void CBlockBuffer::format0(CAutoBuffer& buffer, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const std::string text = FormatC(format, arguments);
    va_end(arguments);
    buffer.clear();
    buffer.append(text.c_str(), text.size() + 1);
}

}  // namespace Tarvik::Util
