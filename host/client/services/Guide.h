// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Tarvik::Client {

/// A page of the user's guide.
struct GuidePage {
    std::string name;      ///< of its file, without ".md"
    std::string title;     ///< its first heading
    std::string markdown;  ///< with the lists of keys that it names, without the marks below
    /// The headings that have a mark, by it: how many headings stand before them.
    std::map<std::string, std::size_t> headings;
};

/// The user's guide in one language: Markdown files, read in the order of their names. Two kinds of marks
/// stand alone on their lines. `<a id="NAME"></a>` names the heading below it: a panel's topic ("func033")
/// leads there. `<!-- keys: TOPIC -->` stands for the keys of a panel, which have their one home below the
/// mark "keys-TOPIC", to the next heading.
class Guide {
  public:
    /// A heading: its page and how many headings of that stand before it.
    struct Place {
        std::size_t page = 0;
        std::size_t heading = 0;
        bool operator==(const Place&) const = default;
    };

    /// The pages of `folder`/`language`; one that it lacks is that of the reference language, which has them
    /// all. No pages where there is no such folder.
    static Guide Read(const std::string& folder, const std::string& language);

    const std::vector<GuidePage>& Pages() const { return pages_; }
    /// Where a mark is, for "keys-TOPIC" the list of keys itself; nothing for an unknown one.
    std::optional<Place> Find(const std::string& mark) const;
    /// The number of a page by its name; nothing for an unknown one.
    std::optional<std::size_t> PageNamed(const std::string& name) const;

  private:
    std::vector<GuidePage> pages_;
};

}  // namespace Tarvik::Client
