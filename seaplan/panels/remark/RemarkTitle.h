// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace Tarvik::Seaplan {

/// A title and the size of its control in pixels.
struct RemarkTitle {
    std::string text;
    int width = 0;
    int height = 0;
    bool operator==(const RemarkTitle&) const = default;
};

/// The title of the remarks of an object: its name at the "%s" of `format`, cut to less than 200 bytes. A
/// title wider than 400 pixels loses its end for "...", unless it has hardly any letters; then it stays
/// whole. `widthOf` measures a text in pixels.
RemarkTitle MakeRemarkTitle(const std::string& format, const std::string& name,
                            const std::function<int(const std::string&)>& widthOf);

}  // namespace Tarvik::Seaplan
