// SPDX-License-Identifier: MIT
// Texts with escapes are put together piece by piece: what stands between two escapes is copied as it is, of
// a pair of surrogates one character is made. The escapes are those of RFC 8259. Linear in the text.
#include "JsonaScan.h"

namespace Tarvik::Util::Scan {

namespace {

const char* Bad(const char* at, const char* text, JsonaFault& fault) {
    fault = {at, text};
    return nullptr;
}

const char* AppendUnicode(const char* at, std::string& arena, JsonaFault& fault) {
    const int unit = HexUnit(at + 2);
    if (unit < 0) {
        return Bad(at, "bad escape", fault);
    }
    if (unit < 0xD800 || unit > 0xDFFF) {
        AppendUtf8(arena, static_cast<std::uint32_t>(unit));
        return at + 6;
    }
    const int low = unit < 0xDC00 && at[6] == '\\' && at[7] == 'u' ? HexUnit(at + 8) : -1;
    if (low < 0xDC00 || low > 0xDFFF) {
        return Bad(at, "lone surrogate", fault);
    }
    AppendUtf8(arena, 0x10000U + (static_cast<std::uint32_t>(unit - 0xD800) << 10) +
                          static_cast<std::uint32_t>(low - 0xDC00));
    return at + 12;
}

/// The place behind the escape at `at`, null for a bad one.
const char* AppendEscape(const char* at, std::string& arena, JsonaFault& fault) {
    char c = 0;
    switch (at[1]) {
        case '"':
        case '\\':
        case '/':
            c = at[1];
            break;
        case 'b':
            c = '\b';
            break;
        case 'f':
            c = '\f';
            break;
        case 'n':
            c = '\n';
            break;
        case 'r':
            c = '\r';
            break;
        case 't':
            c = '\t';
            break;
        case 'u':
            return AppendUnicode(at, arena, fault);
        default:
            return Bad(at, "bad escape", fault);
    }
    arena += c;
    return at + 2;
}

}  // namespace

const char* DecodeText(const JsonaTextRange& range, const char* at, std::string& arena, JsonaFault& fault) {
    const char* pending = range.begin;
    for (;;) {
        if (*at == '"' || *at == '\\') {
            arena.append(pending, at);
        }
        if (*at == '"') {
            return at;
        }
        if (*at == '\\') {
            at = pending = AppendEscape(at, arena, fault);
            if (at == nullptr) {
                return nullptr;
            }
        } else if (*at == '\0') {
            if (at == range.end) {
                return Bad(range.end, kOpenText, fault);
            }
            ++at;
        } else {
            const int length = Utf8SequenceLength(at);
            if (length == 0) {
                return Bad(at, kBadUtf8, fault);
            }
            at += length;
        }
        at = FindTextStop(at);
    }
}

}  // namespace Tarvik::Util::Scan
