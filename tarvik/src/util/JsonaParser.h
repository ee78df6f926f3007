// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "JsonaDocument.h"

namespace Tarvik::Util {

struct JsonaError {
    std::size_t offset = 0;
    const char* text = "";
};

/// Reads a text in one pass. Nodes of open containers wait on a stack and move to the document when their
/// container closes, so that the children of each lie side by side. The copied text ends with zero bytes,
/// which no token takes, so most places need no test for the end.
class JsonaParser {
  public:
    /// The document, its root last; null with `error` set for a bad text. May throw std::bad_alloc.
    static std::shared_ptr<const JsonaDocument> Parse(std::string_view text, JsonaError& error);

  private:
    explicit JsonaParser(JsonaDocument& document, std::size_t size);
    bool Root();
    // Each takes the place to read from and answers the place behind, or null after a failure.
    const char* Value(const char* at, int depth);
    const char* Array(const char* at, int depth);
    const char* Object(const char* at, int depth);
    const char* Key(const char* at);
    const char* Quoted(const char* at);
    const char* Decoded(const char* open, const char* at);
    const char* Number(const char* at);
    const char* Word(const char* at, std::string_view text, Jsona::Kind kind);
    const char* Fail(const char* at, const char* text);

    void Push(Jsona::Kind kind, const char* begin, const char* end);
    void Close(Jsona::Kind kind, std::size_t mark);
    std::uint32_t MergeFew(std::size_t mark);
    void MergeMany(std::size_t mark, JsonaNode& object);
    std::string_view Bytes(std::size_t place) const { return document_.Bytes(stack_[place]); }

    JsonaDocument& document_;
    const char* begin_;
    const char* end_;
    std::vector<JsonaNode> stack_;
    JsonaError error_;
};

}  // namespace Tarvik::Util
