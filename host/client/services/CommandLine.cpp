// SPDX-License-Identifier: MIT
#include "host/client/services/CommandLine.h"

#include <algorithm>
#include <iterator>
#include <string>

#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Colours.h>

#include "host/client/services/Preferences.h"

namespace Tarvik::Client {

namespace {

std::vector<std::string> ThemeNames() {
    std::vector<std::string> names;
    names.reserve(std::size(Skin::kThemes));
    for (const Skin::Theme theme : Skin::kThemes) {
        names.emplace_back(Skin::ThemeName(theme));
    }
    return names;
}

/// Takes the options that are not the plan's own; everything else goes to the plan.
class Sorter {
  public:
    Sorter(const std::vector<std::string>& words, const std::vector<Language>& languages)
        : words_(words), languages_(languages) {}

    CommandLine Run() {
        for (at_ = 0; at_ < words_.size() && line_.error.empty(); ++at_) {
            const std::string& word = words_[at_];
            if (line_.plan && word == "--") {
                line_.planWords.insert(line_.planWords.end(),
                                       words_.begin() + static_cast<std::ptrdiff_t>(at_), words_.end());
                break;
            }
            if (!Take(word)) {
                Rest(word);
            }
        }
        return line_;
    }

  private:
    bool Take(const std::string& word) {
        if (word == "--help" || word == "-h") {
            line_.help = true;
        } else if (word == "--version") {
            line_.version = true;
        } else if (word == "--verbose") {
            line_.session.verbose = true;
        } else if (word == "--data") {
            line_.session.dataFolder = Value(word);
        } else if (word == "--server") {
            line_.session.server = ServerAddress(word);
        } else if (word == "--theme") {
            line_.session.theme = Choice(word, ThemeNames());
        } else if (word == "--lang") {
            line_.session.language = Choice(word, LanguageCodes(languages_));
        } else {
            return !line_.plan && TakeWindowOption(word);
        }
        return true;
    }

    bool TakeWindowOption(const std::string& word) {
        if (word == "--screenshot") {
            line_.screenshot = Value(word);
        } else if (word == "--panel") {
            line_.panel = PanelNumber(word);
        } else {
            return false;
        }
        return true;
    }

    int PanelNumber(const std::string& word) {
        const std::string voyages = std::to_string(Interface::PanelCode::kVoyages);
        const std::string distances = std::to_string(Interface::PanelCode::kDistances);
        return Choice(word, {voyages, distances}) == voyages ? Interface::PanelCode::kVoyages
                                                             : Interface::PanelCode::kDistances;
    }

    void Rest(const std::string& word) {
        if (!line_.plan && word == "plan") {
            line_.plan = true;
        } else if (line_.plan) {
            line_.planWords.push_back(word);
            // The value behind a plan's option is never one of the options here, whatever it looks like.
            const bool option = word.starts_with("--") && word.find('=') == std::string::npos;
            if (option && at_ + 1 < words_.size()) {
                line_.planWords.push_back(words_[++at_]);
            }
        } else {
            line_.error = "Unknown word \"" + word + "\". See --help.";
        }
    }

    std::string Value(const std::string& option) {
        if (at_ + 1 < words_.size() && !words_[at_ + 1].empty()) {
            return words_[++at_];
        }
        line_.error = "The option " + option + " needs a value. See --help.";
        return {};
    }

    std::string ServerAddress(const std::string& option) {
        std::string address = Value(option);
        if (line_.error.empty() && address != "embedded" && !IsServerAddress(address)) {
            line_.error = "Bad value \"" + address + "\" of " + option +
                          ": give https://HOST:PORT, http://HOST:PORT or embedded.";
        }
        return address;
    }

    std::string Choice(const std::string& option, const std::vector<std::string>& good) {
        const std::string chosen = Value(option);
        if (line_.error.empty() && std::find(good.begin(), good.end(), chosen) == good.end()) {
            std::string list;
            for (const std::string& choice : good) {
                list += (list.empty() ? "" : choice == good.back() ? " or " : ", ") + choice;
            }
            line_.error = "Bad value \"" + chosen + "\" of " + option + ": give " + list + ".";
        }
        return chosen;
    }

    const std::vector<std::string>& words_;
    const std::vector<Language>& languages_;
    std::size_t at_ = 0;
    CommandLine line_;
};

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& words, const std::vector<Language>& languages) {
    return Sorter(words, languages).Run();
}

}  // namespace Tarvik::Client
