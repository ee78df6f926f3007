// SPDX-License-Identifier: MIT
#include <charconv>
#include <new>
#include <utility>

#include <tarvik/util/Jsona.h>
#include <tarvik/util/StringUtl.h>

#include "JsonaDocument.h"
#include "JsonaParser.h"

namespace Tarvik::Util {

namespace {

std::string ReadText(const JsonaDocument* document, const JsonaNode* node, const std::string& fallback) {
    if (node == nullptr || node->kind != Jsona::Kind::Text) {
        return fallback;
    }
    return std::string(document->Bytes(*node));
}

int ReadInteger(const JsonaDocument* document, const JsonaNode* node, int fallback) {
    if (node == nullptr || node->kind != Jsona::Kind::Integer) {
        return fallback;
    }
    const std::string_view digits = document->Bytes(*node);
    int value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc() ? value : fallback;
}

double ReadReal(const JsonaDocument* document, const JsonaNode* node, double fallback) {
    if (node == nullptr || node->kind != Jsona::Kind::Real) {
        return fallback;
    }
    const std::string_view digits = document->Bytes(*node);
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc() ? value : StringUtl::ToDouble(std::string(digits));
}

std::string OrEmpty(const char* text) {
    return text != nullptr ? text : "";
}

}  // namespace

Jsona::Jsona(std::shared_ptr<const JsonaDocument> document, std::uint32_t node)
    : document_(std::move(document)), node_(node) {}

bool Jsona::parse(std::string_view text) {
    JsonaError error;
    std::shared_ptr<const JsonaDocument> document;
    try {
        document = JsonaParser::Parse(text, error);
    } catch (const std::exception&) {
        error = {0, "not enough memory"};
    }
    document_ = std::move(document);
    node_ = document_ ? static_cast<std::uint32_t>(document_->nodes.size() - 1) : 0;
    errorOffset_ = document_ ? 0 : error.offset;
    errorText_ = document_ ? "" : error.text;
    return document_ != nullptr;
}

Jsona::Kind Jsona::kind() const {
    return document_ ? document_->nodes[node_].kind : Kind::None;
}

int Jsona::size() const {
    const Kind own = kind();
    return own == Kind::Array || own == Kind::Object ? static_cast<int>(document_->nodes[node_].count) : 0;
}

bool Jsona::has(std::string_view key) const {
    return document_ && document_->Member(document_->nodes[node_], key) != nullptr;
}

Jsona Jsona::get(std::string_view key) const {
    const JsonaNode* node = document_ ? document_->Member(document_->nodes[node_], key) : nullptr;
    if (node == nullptr) {
        return {};
    }
    return {document_, static_cast<std::uint32_t>(node - document_->nodes.data())};
}

Jsona Jsona::get(int index) const {
    const JsonaNode* node = document_ ? document_->Child(document_->nodes[node_], index) : nullptr;
    if (node == nullptr) {
        return {};
    }
    return {document_, static_cast<std::uint32_t>(node - document_->nodes.data())};
}

std::string Jsona::key(int index) const {
    if (kind() != Kind::Object || index < 0 || index >= size()) {
        return {};
    }
    return std::string(document_->Key(document_->nodes[node_], static_cast<std::uint32_t>(index)));
}

std::string Jsona::getv(std::string_view key, const char* fallback) const {
    return getv(key, OrEmpty(fallback));
}

std::string Jsona::getv(std::string_view key, const std::string& fallback) const {
    if (!document_) {
        return fallback;
    }
    return ReadText(document_.get(), document_->Member(document_->nodes[node_], key), fallback);
}

int Jsona::getv(std::string_view key, int fallback) const {
    if (!document_) {
        return fallback;
    }
    return ReadInteger(document_.get(), document_->Member(document_->nodes[node_], key), fallback);
}

double Jsona::getv(std::string_view key, double fallback) const {
    if (!document_) {
        return fallback;
    }
    return ReadReal(document_.get(), document_->Member(document_->nodes[node_], key), fallback);
}

std::string Jsona::getv(int index, const char* fallback) const {
    return getv(index, OrEmpty(fallback));
}

std::string Jsona::getv(int index, const std::string& fallback) const {
    if (!document_) {
        return fallback;
    }
    return ReadText(document_.get(), document_->Child(document_->nodes[node_], index), fallback);
}

int Jsona::getv(int index, int fallback) const {
    if (!document_) {
        return fallback;
    }
    return ReadInteger(document_.get(), document_->Child(document_->nodes[node_], index), fallback);
}

double Jsona::getv(int index, double fallback) const {
    if (!document_) {
        return fallback;
    }
    return ReadReal(document_.get(), document_->Child(document_->nodes[node_], index), fallback);
}

std::string Jsona::text(const std::string& fallback) const {
    return document_ ? ReadText(document_.get(), &document_->nodes[node_], fallback) : fallback;
}

int Jsona::integer(int fallback) const {
    return document_ ? ReadInteger(document_.get(), &document_->nodes[node_], fallback) : fallback;
}

double Jsona::real(double fallback) const {
    return document_ ? ReadReal(document_.get(), &document_->nodes[node_], fallback) : fallback;
}

}  // namespace Tarvik::Util
