// SPDX-License-Identifier: MIT
// JSON, also its looser form, by recursive descent: one pass over a copy of the text, 64 levels deep at most.
// Values are places in that copy; only texts with escapes are copied again. Time and memory are linear in the
// text, apart from sorting the keys of objects with more than kLinearMembers. The grammar stands at Jsona
// (Jsona.h).
#include "JsonaParser.h"

#include <cstring>

#include "JsonaScan.h"

namespace Tarvik::Util {

using namespace Scan;

namespace {

constexpr int kMaxDepth = 64;
constexpr std::size_t kPadding = 32;                 // zero bytes behind the text, for reads of whole blocks
constexpr std::size_t kMaxText = 0xFFFFFFFFU - 64U;  // places are 32 bits wide

}  // namespace

JsonaParser::JsonaParser(JsonaDocument& document, std::size_t size)
    : document_(document), begin_(document.source.data()), end_(begin_ + size) {}

std::shared_ptr<const JsonaDocument> JsonaParser::Parse(std::string_view text, JsonaError& error) {
    if (text.size() > kMaxText) {
        error = {0, "text too long"};
        return nullptr;
    }
    auto document = std::make_shared<JsonaDocument>();
    document->source.reserve(text.size() + kPadding);
    document->source.assign(text).append(kPadding, '\0');
    JsonaParser parser(*document, text.size());
    if (parser.Root()) {
        return document;
    }
    error = parser.error_;
    return nullptr;
}

bool JsonaParser::Root() {
    document_.nodes.reserve(static_cast<std::size_t>(end_ - begin_) / 16 + 1);
    const char* at = Value(SkipSpace(begin_), 0);
    if (at == nullptr) {
        return false;
    }
    at = SkipSpace(at);
    if (at != end_) {
        Fail(at, "text behind the value");
        return false;
    }
    document_.nodes.push_back(stack_.front());
    return true;
}

const char* JsonaParser::Value(const char* at, int depth) {
    switch (*at) {
        case '"':
            return Quoted(at);
        case '{':
            return Object(at, depth + 1);
        case '[':
            return Array(at, depth + 1);
        case 't':
            return Word(at, "true", Jsona::Kind::True);
        case 'f':
            return Word(at, "false", Jsona::Kind::False);
        case 'n':
            return Word(at, "null", Jsona::Kind::Null);
        default:
            return Number(at);
    }
}

const char* JsonaParser::Array(const char* at, int depth) {
    if (depth > kMaxDepth) {
        return Fail(at, "more than 64 levels");
    }
    const std::size_t mark = stack_.size();
    at = SkipSpace(at + 1);
    if (*at != ']') {
        for (;;) {
            at = Value(at, depth);
            if (at == nullptr) {
                return nullptr;
            }
            at = SkipSpace(at);
            if (*at != ',') {
                break;
            }
            at = SkipSpace(at + 1);
        }
        if (*at != ']') {
            return Fail(at, "comma or closing bracket expected");
        }
    }
    Close(Jsona::Kind::Array, mark);
    return at + 1;
}

const char* JsonaParser::Object(const char* at, int depth) {
    if (depth > kMaxDepth) {
        return Fail(at, "more than 64 levels");
    }
    const std::size_t mark = stack_.size();
    at = SkipSpace(at + 1);
    if (*at != '}') {
        for (;;) {
            at = Key(at);
            if (at == nullptr) {
                return nullptr;
            }
            at = SkipSpace(at);
            if (*at != ':') {
                return Fail(at, "colon expected");
            }
            at = Value(SkipSpace(at + 1), depth);
            if (at == nullptr) {
                return nullptr;
            }
            at = SkipSpace(at);
            if (*at != ',') {
                break;
            }
            at = SkipSpace(at + 1);
        }
        if (*at != '}') {
            return Fail(at, "comma or closing brace expected");
        }
    }
    Close(Jsona::Kind::Object, mark);
    return at + 1;
}

const char* JsonaParser::Key(const char* at) {
    if (*at == '"') {
        return Quoted(at);
    }
    if (!Is(*at, kWordStart)) {
        return Fail(at, "key expected");
    }
    const char* end = at + 1;
    while (Is(*end, kWordStart | kDigit)) {
        ++end;
    }
    Push(Jsona::Kind::Text, at, end);
    return end;
}

// A text without escapes stays where it is in the source.
const char* JsonaParser::Quoted(const char* open) {
    const char* at = open + 1;
    for (;;) {
        at = FindTextStop(at);
        if (*at == '"') {
            Push(Jsona::Kind::Text, open + 1, at);
            return at + 1;
        }
        if (*at == '\\') {
            return Decoded(open, at);
        }
        if (*at == '\0') {
            if (at == end_) {
                return Fail(end_, kOpenText);
            }
            ++at;
            continue;
        }
        do {
            const int length = Utf8SequenceLength(at);
            if (length == 0) {
                return Fail(at, kBadUtf8);
            }
            at += length;
        } while (static_cast<signed char>(*at) < 0);
    }
}

// Goes on from the first backslash, `at`; the text is put together in the arena.
const char* JsonaParser::Decoded(const char* open, const char* at) {
    const std::size_t start = document_.arena.size();
    JsonaFault fault;
    at = DecodeText({open + 1, end_}, at, document_.arena, fault);
    if (at == nullptr) {
        return Fail(fault.at, fault.text);
    }
    JsonaNode node;
    node.start = static_cast<std::uint32_t>(start);
    node.count = static_cast<std::uint32_t>(document_.arena.size() - start);
    node.kind = Jsona::Kind::Text;
    node.decoded = true;
    stack_.push_back(node);
    return at + 1;
}

// The digits are read when somebody asks for them.
const char* JsonaParser::Number(const char* begin) {
    const char* at = *begin == '-' ? begin + 1 : begin;
    if (!Is(*at, kDigit)) {
        return Fail(at, at == end_ ? "unexpected end of text" : "value expected");
    }
    at = *at == '0' ? at + 1 : SkipDigits(at);
    Jsona::Kind kind = Jsona::Kind::Integer;
    if (*at == '.') {
        kind = Jsona::Kind::Real;
        if (!Is(*++at, kDigit)) {
            return Fail(at, "digit expected");
        }
        at = SkipDigits(at);
    }
    if (*at == 'e' || *at == 'E') {
        kind = Jsona::Kind::Real;
        ++at;
        if (*at == '+' || *at == '-') {
            ++at;
        }
        if (!Is(*at, kDigit)) {
            return Fail(at, "digit expected");
        }
        at = SkipDigits(at);
    }
    Push(kind, begin, at);
    return at;
}

const char* JsonaParser::Word(const char* at, std::string_view text, Jsona::Kind kind) {
    if (std::strncmp(at, text.data(), text.size()) != 0) {
        return Fail(at, "value expected");
    }
    Push(kind, at, at + text.size());
    return at + text.size();
}

const char* JsonaParser::Fail(const char* at, const char* text) {
    error_ = {static_cast<std::size_t>(at - begin_), text};
    return nullptr;
}

void JsonaParser::Push(Jsona::Kind kind, const char* begin, const char* end) {
    JsonaNode node;
    node.start = static_cast<std::uint32_t>(begin - begin_);
    node.count = static_cast<std::uint32_t>(end - begin);
    node.kind = kind;
    stack_.push_back(node);
}

}  // namespace Tarvik::Util
