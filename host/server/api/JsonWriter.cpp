// SPDX-License-Identifier: MIT
#include "host/server/api/JsonWriter.h"

#include <algorithm>

#include "host/server/api/Numbers.h"

namespace Tarvik::Server {

namespace {

bool NeedsEscape(char c) {
    return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20;
}

}  // namespace

void JsonWriter::Separate() {
    if (comma_) {
        text_ += ',';
    }
    comma_ = true;
}

JsonWriter& JsonWriter::Open(char bracket) {
    Separate();
    text_ += bracket;
    comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::Close(char bracket) {
    text_ += bracket;
    comma_ = true;
    return *this;
}

JsonWriter& JsonWriter::Key(std::string_view key) {
    Separate();
    Quote(key);
    text_ += ':';
    comma_ = false;
    return *this;
}

JsonWriter& JsonWriter::Text(std::string_view text) {
    Separate();
    Quote(text);
    return *this;
}

JsonWriter& JsonWriter::Integer(std::int64_t number) {
    Separate();
    text_ += std::to_string(number);
    return *this;
}

JsonWriter& JsonWriter::Fraction(double number) {
    Separate();
    text_ += PrintDecimal(number, 1);
    return *this;
}

JsonWriter& JsonWriter::NumberMember(std::string_view key, std::int64_t number) {
    return Key(key).Text(std::to_string(number));
}

void JsonWriter::Quote(std::string_view text) {
    text_ += '"';
    // Nearly every text goes in as it stands.
    if (std::none_of(text.begin(), text.end(), NeedsEscape)) {
        text_ += text;
    } else {
        Escape(text);
    }
    text_ += '"';
}

void JsonWriter::Escape(std::string_view text) {
    constexpr std::string_view kHex = "0123456789abcdef";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            text_ += '\\';
            text_ += c;
        } else if (c == '\n') {
            text_ += "\\n";
        } else if (c == '\r') {
            text_ += "\\r";
        } else if (c == '\t') {
            text_ += "\\t";
        } else if (byte < 0x20) {
            text_ += "\\u00";
            text_ += kHex[byte >> 4U];
            text_ += kHex[byte & 0xFU];
        } else {
            text_ += c;
        }
    }
}

}  // namespace Tarvik::Server
