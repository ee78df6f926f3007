// SPDX-License-Identifier: MIT
#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/ports/search/TypingDistance.h"

namespace Tarvik::Ports {

namespace {

/// The same by the table itself.
std::size_t ByTable(const std::u32string& typed, const std::u32string& text) {
    std::vector<std::vector<std::size_t>> cells(typed.size() + 1, std::vector<std::size_t>(text.size() + 1));
    for (std::size_t i = 0; i <= typed.size(); ++i) {
        for (std::size_t j = 0; j <= text.size(); ++j) {
            if (i == 0 || j == 0) {
                cells[i][j] = i + j;
                continue;
            }
            const std::size_t wrong = typed[i - 1] == text[j - 1] ? 0 : 1;
            cells[i][j] = std::min({cells[i - 1][j] + 1, cells[i][j - 1] + 1, cells[i - 1][j - 1] + wrong});
            if (i > 1 && j > 1 && typed[i - 1] == text[j - 2] && typed[i - 2] == text[j - 1]) {
                cells[i][j] = std::min(cells[i][j], cells[i - 2][j - 2] + 1);
            }
        }
    }
    return *std::min_element(cells.back().begin(), cells.back().end());
}

TEST(TypingDistance, CountsEachKindOfErrorOnce) {
    EXPECT_EQ(TypingDistance(U"rott").To(U"rotterdam"), 0U);
    EXPECT_EQ(TypingDistance(U"roterdam").To(U"rotterdam"), 1U);
    EXPECT_EQ(TypingDistance(U"rottterdam").To(U"rotterdam"), 1U);
    EXPECT_EQ(TypingDistance(U"rptterdam").To(U"rotterdam"), 1U);
    EXPECT_EQ(TypingDistance(U"rottredam").To(U"rotterdam"), 1U);
    EXPECT_EQ(TypingDistance(U"鹿得丹").To(U"鹿特丹"), 1U);
    EXPECT_EQ(TypingDistance(U"").To(U"rotterdam"), 0U);
    EXPECT_EQ(TypingDistance(U"abc").To(U""), 3U);
}

TEST(TypingDistance, EqualsTheTableOnRandomTexts) {
    std::mt19937 random(7);
    const auto make = [&random](std::size_t longest) {
        std::u32string text(std::uniform_int_distribution<std::size_t>(0, longest)(random), U'a');
        for (char32_t& c : text) {
            c = U"abc港"[std::uniform_int_distribution<std::size_t>(0, 3)(random)];
        }
        return text;
    };
    for (int i = 0; i < 20'000; ++i) {
        const std::u32string typed = make(i % 100 == 0 ? TypingDistance::kLongest : 9);
        const std::u32string text = make(12);
        ASSERT_EQ(TypingDistance(typed).To(text), ByTable(typed, text));
    }
}

TEST(TypingDistance, LongerTextsAreCut) {
    const std::u32string longest(TypingDistance::kLongest, U'a');
    EXPECT_EQ(TypingDistance(longest + U"zzz").To(longest), 0U);
}

}  // namespace
}  // namespace Tarvik::Ports
