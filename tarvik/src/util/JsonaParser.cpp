// SPDX-License-Identifier: MIT
#include "JsonaParser.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "Utf8Scan.h"

namespace Tarvik::Util {

namespace {

constexpr int kMaxDepth = 64;
constexpr std::size_t kPadding = 32;                 // zero bytes behind the text, for reads of whole blocks
constexpr std::size_t kMaxText = 0xFFFFFFFFU - 64U;  // places are 32 bits wide

enum : std::uint8_t { kSpace = 1, kDigit = 2, kWordStart = 4, kTextStop = 8 };

constexpr std::array<std::uint8_t, 256> MakeClasses() {
    std::array<std::uint8_t, 256> classes{};
    for (const char c : {' ', '\t', '\n', '\r'}) classes[static_cast<std::uint8_t>(c)] |= kSpace;
    for (int c = '0'; c <= '9'; ++c) classes[static_cast<std::size_t>(c)] |= kDigit;
    for (int c = 'a'; c <= 'z'; ++c) classes[static_cast<std::size_t>(c)] |= kWordStart;
    for (int c = 'A'; c <= 'Z'; ++c) classes[static_cast<std::size_t>(c)] |= kWordStart;
    for (const char c : {'_', '$'}) classes[static_cast<std::uint8_t>(c)] |= kWordStart;
    for (std::size_t c = 128; c < 256; ++c) classes[c] |= kTextStop;
    for (const char c : {'"', '\\', '\0'}) classes[static_cast<std::uint8_t>(c)] |= kTextStop;
    return classes;
}

constexpr std::array<std::uint8_t, 256> kClasses = MakeClasses();

bool Is(char c, int classes) {
    return (kClasses[static_cast<std::uint8_t>(c)] & classes) != 0;
}

const char* SkipSpace(const char* at) {
    while (Is(*at, kSpace)) ++at;
    return at;
}

// First quote, backslash, zero or non-ASCII byte.
inline const char* FindTextStop(const char* at) {
#if defined(__SSE2__)
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i backslash = _mm_set1_epi8('\\');
    for (;; at += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i hits =
            _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(block, quote), _mm_cmpeq_epi8(block, backslash)),
                         _mm_or_si128(_mm_cmpeq_epi8(block, _mm_setzero_si128()), block));
        const int mask = _mm_movemask_epi8(hits);
        if (mask != 0) return at + __builtin_ctz(static_cast<unsigned>(mask));
    }
#else
    while (!Is(*at, kTextStop)) ++at;
    return at;
#endif
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Four hexadecimal digits, or -1.
int HexUnit(const char* at) {
    int unit = 0;
    for (int i = 0; i < 4; ++i) {
        const int digit = HexDigit(at[i]);
        if (digit < 0) return -1;
        unit = unit * 16 + digit;
    }
    return unit;
}

void AppendUtf8(std::string& out, std::uint32_t c) {
    const auto add = [&out](std::uint32_t byte) { out += static_cast<char>(byte); };
    if (c < 0x80) return add(c);
    if (c < 0x800) {
        add(0xC0 | c >> 6);
    } else {
        if (c < 0x10000) {
            add(0xE0 | c >> 12);
        } else {
            add(0xF0 | c >> 18);
            add(0x80 | (c >> 12 & 0x3F));
        }
        add(0x80 | (c >> 6 & 0x3F));
    }
    add(0x80 | (c & 0x3F));
}

const char* SkipDigits(const char* at) {
    while (Is(*at, kDigit)) ++at;
    return at;
}

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
    if (parser.root()) return document;
    error = parser.error_;
    return nullptr;
}

bool JsonaParser::root() {
    document_.nodes.reserve(static_cast<std::size_t>(end_ - begin_) / 16 + 1);
    const char* at = value(SkipSpace(begin_), 0);
    if (at == nullptr) return false;
    at = SkipSpace(at);
    if (at != end_) {
        fail(at, "text behind the value");
        return false;
    }
    document_.nodes.push_back(stack_.front());
    return true;
}

const char* JsonaParser::value(const char* at, int depth) {
    switch (*at) {
        case '"':
            return quoted(at);
        case '{':
            return object(at, depth + 1);
        case '[':
            return array(at, depth + 1);
        case 't':
            return word(at, "true", Jsona::Kind::True);
        case 'f':
            return word(at, "false", Jsona::Kind::False);
        case 'n':
            return word(at, "null", Jsona::Kind::Null);
        default:
            return number(at);
    }
}

const char* JsonaParser::array(const char* at, int depth) {
    if (depth > kMaxDepth) return fail(at, "more than 64 levels");
    const std::size_t mark = stack_.size();
    at = SkipSpace(at + 1);
    if (*at != ']') {
        for (;;) {
            at = value(at, depth);
            if (at == nullptr) return nullptr;
            at = SkipSpace(at);
            if (*at != ',') break;
            at = SkipSpace(at + 1);
        }
        if (*at != ']') return fail(at, "comma or closing bracket expected");
    }
    close(Jsona::Kind::Array, mark);
    return at + 1;
}

const char* JsonaParser::object(const char* at, int depth) {
    if (depth > kMaxDepth) return fail(at, "more than 64 levels");
    const std::size_t mark = stack_.size();
    at = SkipSpace(at + 1);
    if (*at != '}') {
        for (;;) {
            at = key(at);
            if (at == nullptr) return nullptr;
            at = SkipSpace(at);
            if (*at != ':') return fail(at, "colon expected");
            at = value(SkipSpace(at + 1), depth);
            if (at == nullptr) return nullptr;
            at = SkipSpace(at);
            if (*at != ',') break;
            at = SkipSpace(at + 1);
        }
        if (*at != '}') return fail(at, "comma or closing brace expected");
    }
    close(Jsona::Kind::Object, mark);
    return at + 1;
}

const char* JsonaParser::key(const char* at) {
    if (*at == '"') return quoted(at);
    if (!Is(*at, kWordStart)) return fail(at, "key expected");
    const char* end = at + 1;
    while (Is(*end, kWordStart | kDigit)) ++end;
    push(Jsona::Kind::Text, at, end);
    return end;
}

// A text without escapes stays where it is in the source.
const char* JsonaParser::quoted(const char* open) {
    const char* at = open + 1;
    for (;;) {
        at = FindTextStop(at);
        if (*at == '"') {
            push(Jsona::Kind::Text, open + 1, at);
            return at + 1;
        }
        if (*at == '\\') return decoded(open, at);
        if (*at == '\0') {
            if (at == end_) return fail(end_, "text without closing quote");
            ++at;
            continue;
        }
        do {
            const int length = Utf8SequenceLength(at);
            if (length == 0) return fail(at, "bad UTF-8");
            at += length;
        } while (static_cast<signed char>(*at) < 0);
    }
}

// Goes on from the first backslash, `at`; the text is put together in the arena.
const char* JsonaParser::decoded(const char* open, const char* at) {
    const std::size_t start = document_.arena.size();
    const char* pending = open + 1;
    for (;;) {
        if (*at == '"' || *at == '\\') document_.arena.append(pending, at);
        if (*at == '"') break;
        if (*at == '\\') {
            at = pending = escape(at);
            if (at == nullptr) return nullptr;
        } else if (*at == '\0') {
            if (at == end_) return fail(end_, "text without closing quote");
            ++at;
        } else {
            const int length = Utf8SequenceLength(at);
            if (length == 0) return fail(at, "bad UTF-8");
            at += length;
        }
        at = FindTextStop(at);
    }
    JsonaNode node;
    node.start = static_cast<std::uint32_t>(start);
    node.count = static_cast<std::uint32_t>(document_.arena.size() - start);
    node.kind = Jsona::Kind::Text;
    node.decoded = true;
    stack_.push_back(node);
    return at + 1;
}

const char* JsonaParser::escape(const char* at) {
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
            return unicode(at);
        default:
            return fail(at, "bad escape");
    }
    document_.arena += c;
    return at + 2;
}

const char* JsonaParser::unicode(const char* at) {
    const int unit = HexUnit(at + 2);
    if (unit < 0) return fail(at, "bad escape");
    if (unit < 0xD800 || unit > 0xDFFF) {
        AppendUtf8(document_.arena, static_cast<std::uint32_t>(unit));
        return at + 6;
    }
    const int low = unit < 0xDC00 && at[6] == '\\' && at[7] == 'u' ? HexUnit(at + 8) : -1;
    if (low < 0xDC00 || low > 0xDFFF) return fail(at, "lone surrogate");
    AppendUtf8(document_.arena, 0x10000U + (static_cast<std::uint32_t>(unit - 0xD800) << 10) +
                                    static_cast<std::uint32_t>(low - 0xDC00));
    return at + 12;
}

// The digits are read when somebody asks for them.
const char* JsonaParser::number(const char* begin) {
    const char* at = *begin == '-' ? begin + 1 : begin;
    if (!Is(*at, kDigit)) return fail(at, at == end_ ? "unexpected end of text" : "value expected");
    at = *at == '0' ? at + 1 : SkipDigits(at);
    Jsona::Kind kind = Jsona::Kind::Integer;
    if (*at == '.') {
        kind = Jsona::Kind::Real;
        if (!Is(*++at, kDigit)) return fail(at, "digit expected");
        at = SkipDigits(at);
    }
    if (*at == 'e' || *at == 'E') {
        kind = Jsona::Kind::Real;
        ++at;
        if (*at == '+' || *at == '-') ++at;
        if (!Is(*at, kDigit)) return fail(at, "digit expected");
        at = SkipDigits(at);
    }
    push(kind, begin, at);
    return at;
}

const char* JsonaParser::word(const char* at, std::string_view text, Jsona::Kind kind) {
    if (std::strncmp(at, text.data(), text.size()) != 0) return fail(at, "value expected");
    push(kind, at, at + text.size());
    return at + text.size();
}

const char* JsonaParser::fail(const char* at, const char* text) {
    error_ = {static_cast<std::size_t>(at - begin_), text};
    return nullptr;
}

void JsonaParser::push(Jsona::Kind kind, const char* begin, const char* end) {
    JsonaNode node;
    node.start = static_cast<std::uint32_t>(begin - begin_);
    node.count = static_cast<std::uint32_t>(end - begin);
    node.kind = kind;
    stack_.push_back(node);
}

// Moves the nodes behind `mark` into the document and puts their container in their place.
void JsonaParser::close(Jsona::Kind kind, std::size_t mark) {
    JsonaNode node;
    node.kind = kind;
    node.count = static_cast<std::uint32_t>(stack_.size() - mark);
    if (kind == Jsona::Kind::Object) {
        node.count /= 2;
        if (node.count > JsonaDocument::kLinearMembers) {
            mergeMany(mark, node);
        } else if (node.count > 1) {
            node.count = mergeFew(mark);
        }
    }
    node.start = static_cast<std::uint32_t>(document_.nodes.size());
    document_.nodes.insert(document_.nodes.end(), stack_.begin() + static_cast<std::ptrdiff_t>(mark),
                           stack_.end());
    stack_.resize(mark);
    stack_.push_back(node);
}

// A later member of an equal key gives its value to the first and goes. A mask of key marks keeps most pairs
// apart without comparing them.
std::uint32_t JsonaParser::mergeFew(std::size_t mark) {
    std::uint64_t seen = 0;
    std::size_t kept = mark;
    for (std::size_t at = mark; at < stack_.size(); at += 2) {
        const std::string_view key = bytes(at);
        const unsigned first = key.empty() ? 0U : static_cast<std::uint8_t>(key.front());
        const unsigned last = key.empty() ? 0U : static_cast<std::uint8_t>(key.back());
        const std::uint64_t bit = std::uint64_t{1} << ((key.size() * 11 + first * 3 + last * 7) & 63);
        std::size_t same = kept;
        if ((seen & bit) != 0) {
            for (same = mark; same < kept && bytes(same) != key; same += 2) {
            }
        }
        seen |= bit;
        if (same < kept) {
            stack_[same + 1] = stack_[at + 1];
            continue;
        }
        stack_[kept] = stack_[at];
        stack_[kept + 1] = stack_[at + 1];
        kept += 2;
    }
    stack_.resize(kept);
    return static_cast<std::uint32_t>((kept - mark) / 2);
}

// The same for large objects by way of a sorted index, which stays for look-ups.
void JsonaParser::mergeMany(std::size_t mark, JsonaNode& object) {
    std::vector<std::uint32_t> sorted(object.count);
    std::iota(sorted.begin(), sorted.end(), 0U);
    const auto key = [&](std::uint32_t member) { return bytes(mark + 2 * std::size_t{member}); };
    std::sort(sorted.begin(), sorted.end(), [&](std::uint32_t a, std::uint32_t b) {
        const int order = key(a).compare(key(b));
        return order != 0 ? order < 0 : a < b;
    });
    // Of equal keys the first member stays and takes the last one's value.
    constexpr std::uint32_t kGone = 0xFFFFFFFFU;
    std::vector<std::uint32_t> place(object.count, 0);
    std::vector<std::uint32_t> unique;
    for (const std::uint32_t member : sorted) {
        if (!unique.empty() && key(unique.back()) == key(member)) {
            stack_[mark + 2 * std::size_t{unique.back()} + 1] = stack_[mark + 2 * std::size_t{member} + 1];
            place[member] = kGone;
        } else {
            unique.push_back(member);
        }
    }
    std::uint32_t kept = 0;
    for (std::uint32_t member = 0; member < object.count; ++member) {
        if (place[member] == kGone) continue;
        stack_[mark + 2 * std::size_t{kept}] = stack_[mark + 2 * std::size_t{member}];
        stack_[mark + 2 * std::size_t{kept} + 1] = stack_[mark + 2 * std::size_t{member} + 1];
        place[member] = kept++;
    }
    stack_.resize(mark + 2 * std::size_t{kept});
    object.count = kept;
    object.order = static_cast<std::uint32_t>(document_.order.size());
    for (const std::uint32_t member : unique) document_.order.push_back(place[member]);
}

}  // namespace Tarvik::Util
