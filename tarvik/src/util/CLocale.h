// SPDX-License-Identifier: MIT
#pragma once

#include <clocale>
#include <cstdarg>
#include <string>

#include <locale.h>

namespace Tarvik::Util {

/// The "C" locale, made once.
locale_t CLocale();

/// vsnprintf in the "C" locale; empty for a format that fails.
std::string FormatC(const char* format, std::va_list arguments);

}  // namespace Tarvik::Util
