// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace Tarvik::Server {

/// Writes strict JSON piece by piece, commas included. Texts must be valid UTF-8.
class JsonWriter {
  public:
    JsonWriter& BeginObject() { return Open('{'); }
    JsonWriter& EndObject() { return Close('}'); }
    JsonWriter& BeginArray() { return Open('['); }
    JsonWriter& EndArray() { return Close(']'); }
    JsonWriter& Key(std::string_view key);
    JsonWriter& Text(std::string_view text);
    JsonWriter& Integer(std::int64_t number);
    /// Writes a finite number with a fraction, also a whole one, so that it reads as floating point.
    JsonWriter& Fraction(double number);

    /// A member whose value is a text.
    JsonWriter& TextMember(std::string_view key, std::string_view text) { return Key(key).Text(text); }
    /// A member whose value is an integer written as a text.
    JsonWriter& NumberMember(std::string_view key, std::int64_t number);

    std::string Take() { return std::move(text_); }

  private:
    JsonWriter& Open(char bracket);
    JsonWriter& Close(char bracket);
    void Separate();
    void Quote(std::string_view text);
    void Escape(std::string_view text);

    std::string text_;
    bool comma_ = false;
};

}  // namespace Tarvik::Server
