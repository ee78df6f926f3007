// SPDX-License-Identifier: MIT
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/remark/RemarkView.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kBytes = 200;  ///< of a title, with its end
constexpr int kTitleHeight = 25;
constexpr int kMostWidth = 400;
constexpr int kMargin = 20;
constexpr std::size_t kDots = 3;

/// The first bytes of a text, at most as many as `most`, without half a letter at the end.
std::string FirstBytes(const std::string& text, std::size_t most) {
    if (text.size() <= most) {
        return text;
    }
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return text.substr(0, end);
}

/// The first `count` UTF-16 units, or one less where that would part a pair.
std::u16string FirstUnits(const std::u16string& text, std::size_t count) {
    const bool inPair = count > 0 && (text[count - 1] & 0xFC00) == 0xD800;
    return text.substr(0, inPair ? count - 1 : count);
}

std::string Printed(const std::string& format, const std::string& name) {
    constexpr const char* kPlace = "%s";
    std::string text = format;
    const auto place = text.find(kPlace);
    if (place != std::string::npos) {
        text.replace(place, 2, name);
    }
    return FirstBytes(text, kBytes - 1);
}

}  // namespace

RemarkTitle MakeRemarkTitle(const std::string& format, const std::string& name,
                            const std::function<int(const std::string&)>& widthOf) {
    const std::string whole = Printed(format, name);
    const int width = widthOf(whole);
    if (width <= kMostWidth) {
        return {whole, width + kMargin, kTitleHeight};
    }
    const std::u16string wide = Util::StringUtl::TranslateString(whole);
    const auto fitting = static_cast<std::size_t>(static_cast<double>(wide.size()) * kMostWidth / width);
    if (fitting <= kDots) {
        return {whole, kMostWidth, kTitleHeight};
    }
    return {Util::StringUtl::TranslateString(FirstUnits(wide, fitting - kDots)) + "...", kMostWidth,
            kTitleHeight};
}

}  // namespace Tarvik::Seaplan
