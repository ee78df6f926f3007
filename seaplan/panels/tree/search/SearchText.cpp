// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/search/SearchText.h"

#include <algorithm>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

char16_t Small(char16_t unit) {
    constexpr char16_t kToSmall = u'a' - u'A';
    const bool ascii = unit >= u'A' && unit <= u'Z';
    // The multiplication sign stands among the letters.
    const bool latin = unit >= u'\u00C0' && unit <= u'\u00DE' && unit != u'\u00D7';
    return ascii || latin ? static_cast<char16_t>(unit + kToSmall) : unit;
}

bool IsAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string FoldSearch(const std::string& text) {
    if (IsAscii(text)) {
        std::string folded = text;
        for (char& c : folded) {
            c = static_cast<char>(Small(static_cast<char16_t>(c)));
        }
        return folded;
    }
    std::u16string wide = StringUtl::TranslateString(text);
    std::transform(wide.begin(), wide.end(), wide.begin(), Small);
    return StringUtl::TranslateString(wide);
}

std::vector<std::string> SearchWords(const std::string& typed) {
    std::vector<std::string> words;
    std::u16string word;
    for (const char16_t unit : StringUtl::TranslateString(FoldSearch(typed)) + u" ") {
        if (!StringUtl::IsSpace(unit)) {
            word += unit;
        } else if (!word.empty()) {
            words.push_back(StringUtl::TranslateString(word));
            word.clear();
        }
    }
    return words;
}

bool HoldsAll(const std::string& folded, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word) { return folded.find(word) != std::string::npos; });
}

std::string SearchTextOf(const VoyInfo& voyage) {
    // Line breaks keep a word from being found across two texts.
    std::string text = voyage.vn + "\n" + voyage.vsn;
    for (const VoyPortCall& call : voyage.portCalls) {
        text.append("\n").append(call.ppn);
    }
    if (!voyage.portCalls.empty()) {
        text.append("\n").append(voyage.portCalls.front().etd.fmt(Util::kDayFormat));
        text.append("\n").append(voyage.portCalls.back().eta.fmt(Util::kDayFormat));
    }
    return FoldSearch(text);
}

bool Passes(const VoyInfo& voyage, VoyageFilter filter, const Util::_datetime_t& now) {
    switch (filter) {
        case VoyageFilter::UnderWay:
            return StatusAt(voyage.portCalls, now) == VoyageStatus::Underway;
        case VoyageFilter::ArrivingSoon: {
            const auto last =
                Util::_datetime_t::from_csecs_days(now.time().to_csecs(), now.date().to_days() + kSoonDays);
            return voyage.portCalls.size() > 1 && voyage.portCalls.back().eta >= now &&
                   voyage.portCalls.back().eta <= last;
        }
        case VoyageFilter::WithoutRoute:
            return voyage.positionBook.points.empty();
        case VoyageFilter::All:
            break;
    }
    return true;
}

}  // namespace Tarvik::Seaplan
