// SPDX-License-Identifier: MIT
#include "seaplan/data/OtherPortNames.h"

#include <set>
#include <sstream>
#include <utility>

#include "seaplan/data/TableRows.h"

/// Three readings of the table of points, each of which gives way to the one before: a port is asked for by
/// code first, then by the names that the table gives it, then by a part of its name. One look-up a text, and
/// a name that stands for two ports is taken out of its own reading alone.
namespace Tarvik::Seaplan {

namespace {

using Names = std::map<std::string, std::string>;

/// The other names of one reading, and those of them that mean two ports.
class Reading {
  public:
    void Add(const std::string& other, const std::string& name) {
        const std::string key = FoldedName(other);
        if (key.empty() || key == FoldedName(name)) {
            return;
        }
        const auto [known, fresh] = names_.emplace(key, name);
        if (!fresh && known->second != name) {
            twofold_.insert(key);
        }
    }
    /// What means one port goes to those that are there already.
    void GiveTo(Names& all) {
        for (const std::string& key : twofold_) {
            names_.erase(key);
        }
        all.merge(names_);
    }

  private:
    Names names_;
    std::set<std::string> twofold_;
};

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

void AddParts(const std::string& text, char apart, const std::string& name, Reading& reading) {
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, apart);) {
        reading.Add(Trimmed(part), name);
    }
}

}  // namespace

std::string FoldedName(const std::string& text) {
    std::string out = text;
    for (char& c : out) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return out;
}

std::map<std::string, std::string> ReadOtherPortNames(const std::string& database) {
    Names all;
    // A port that is one place with another gives way to that one.
    ForEachRow(database, "select unlocode,name from t_point where isport='1' order by origid!='0',id",
               [&all](const auto& row) {
                   if (const std::string code = ColumnText(row, 0); !code.empty()) {
                       all.emplace(FoldedName(code), ColumnText(row, 1));
                   }
               });
    Reading given;
    ForEachRow(database, "select aliases,name from t_point where isport='1'",
               [&given](const auto& row) { AddParts(ColumnText(row, 0), ';', ColumnText(row, 1), given); });
    given.GiveTo(all);
    Reading parts;
    ForEachRow(database, "select name from t_point where isport='1'", [&parts](const auto& row) {
        const std::string name = ColumnText(row, 0);
        AddParts(name.substr(0, name.find(',')), '/', name, parts);
    });
    parts.GiveTo(all);
    return all;
}

}  // namespace Tarvik::Seaplan
