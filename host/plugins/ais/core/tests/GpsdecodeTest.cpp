// SPDX-License-Identifier: MIT
// The decoder against the one of another project: on public sentences, whose answer stands beside them, and,
// where that program is installed, on many random ones. Positions and rates are compared as the whole numbers
// that were sent.
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/plugins/ais/core/Decoder.h"
#include "host/plugins/ais/core/SentenceWriter.h"

namespace Tarvik::Ais {

namespace {

using nlohmann::json;

std::string ReadAll(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::int64_t Whole(double value) {
    return std::llround(value);
}

/// What both decoders say of a message, in whole numbers and texts. A value that is not available is left
/// out.
std::map<std::string, std::string> Facts(const Message& message) {
    std::map<std::string, std::string> facts{{"type", std::to_string(message.type)},
                                             {"mmsi", std::to_string(message.mmsi)}};
    const bool coarse = message.type == 27;
    const auto tell = [&facts](const char* key, double value, double share) {
        if (value >= 0) {
            facts[key] = std::to_string(Whole(value * share));
        }
    };
    if (message.moves) {
        const Movement& movement = message.movement;
        if (movement.hasPlace) {
            facts["lon"] = std::to_string(Whole(movement.longitude * (coarse ? 600 : 600000)));
            facts["lat"] = std::to_string(Whole(movement.latitude * (coarse ? 600 : 600000)));
        }
        tell("speed", movement.speed, coarse ? 1 : 10);
        tell("course", movement.course, coarse ? 1 : 10);
        tell("heading", movement.heading, 1);
        tell("second", movement.second, 1);
    }
    if (message.tellsName) {
        facts["shipname"] = message.particulars.name;
    }
    if (message.tellsKind) {
        facts["callsign"] = message.particulars.callSign;
    }
    if (message.tellsVoyage) {
        facts["destination"] = message.particulars.destination;
        facts["imo"] = std::to_string(message.particulars.imo);
        tell("draught", message.particulars.draught, 10);
    }
    if (message.tellsSizeOfShip) {
        tell("to_bow", message.particulars.toBow, 1);
        tell("to_starboard", message.particulars.toStarboard, 1);
    }
    return facts;
}

/// The same of a line of the other program, by the values that stand for "not available".
std::map<std::string, std::string> FactsOf(const json& line) {
    const int type = line.at("type");
    const bool coarse = type == 27;
    const std::map<std::string, std::int64_t> limits{{"lon", coarse ? 108000 : 108000000},
                                                     {"lat", coarse ? 54000 : 54000000},
                                                     {"speed", coarse ? 62 : 1022},
                                                     {"course", coarse ? 359 : 3599},
                                                     {"heading", 359},
                                                     {"second", 59}};
    std::map<std::string, std::string> facts;
    for (const char* key : {"type", "mmsi", "lon", "lat", "speed", "course", "heading", "second", "imo",
                            "draught", "to_bow", "to_starboard"}) {
        if (!line.contains(key)) {
            continue;
        }
        const std::int64_t value = line[key];
        const auto limit = limits.find(key);
        if (limit == limits.end() || std::abs(value) <= limit->second) {
            facts[key] = std::to_string(value);
        }
    }
    // To part B of a type 24 it adds the name that came in part A before.
    const bool borrowed = type == 24 && !line.contains("part");
    for (const char* key : {"shipname", "callsign", "destination"}) {
        if (line.contains(key) && !(borrowed && key == std::string("shipname"))) {
            facts[key] = line[key];
        }
    }
    if (!facts.count("lon") || !facts.count("lat")) {
        facts.erase("lon");
        facts.erase("lat");
    }
    return facts;
}

using Lines = std::vector<std::map<std::string, std::string>>;

Lines Ours(const std::string& sentences) {
    Lines lines;
    Decoder decoder([&lines](const Message& message) { lines.push_back(Facts(message)); });
    decoder.Take(sentences, 0);
    return lines;
}

Lines Theirs(const std::string& text) {
    Lines lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        const json parsed = json::parse(line);
        const int type = parsed.at("type");
        for (const int known : {1, 2, 3, 5, 18, 19, 24, 27}) {
            if (type == known) {
                lines.push_back(FactsOf(parsed));
            }
        }
    }
    return lines;
}

TEST(GpsdecodeTest, PublicSentencesGiveTheSameFacts) {
    const std::string folder = AIS_SAMPLES;
    const Lines ours = Ours(ReadAll(folder + "/public.nmea"));
    const Lines theirs = Theirs(ReadAll(folder + "/public.json"));
    EXPECT_EQ(theirs.size(), 19U);
    EXPECT_EQ(ours, theirs);
}

#ifdef GPSDECODE

/// The program's output for these sentences.
std::string Gpsdecode(const std::string& sentences) {
    const std::string file = testing::TempDir() + "/ais-" + std::to_string(std::random_device{}()) + ".nmea";
    std::ofstream(file, std::ios::binary) << sentences;
    std::string output;
    FILE* pipe = popen((std::string(GPSDECODE) + " -j -u -s <" + file).c_str(), "r");
    char block[65536];
    for (std::size_t got; pipe != nullptr && (got = std::fread(block, 1, sizeof block, pipe)) > 0;) {
        output.append(block, got);
    }
    EXPECT_TRUE(pipe != nullptr && pclose(pipe) == 0);
    std::remove(file.c_str());
    return output;
}

class RandomSentences {
  public:
    explicit RandomSentences(unsigned seed) : random_(seed) {}
    std::string Next() {
        const int kind = From(0, 9);
        if (kind < 5) {
            return Join(Sentences(ClassA(Movement(From(1, 3), 600000))));
        }
        if (kind < 7) {
            return Join(Sentences(ClassB(Movement(18, 600000))));
        }
        if (kind < 8) {
            RawMovement raw = Movement(27, 600);
            raw.speed = From(0, 63);
            raw.course = From(0, 360);
            return Join(Sentences(LongRange(raw)));
        }
        return Join(Sentences(VoyageData(From(1, 999999999), Words(20), Words(7), Words(20)), From(0, 9)));
    }

  private:
    int From(int first, int last) { return std::uniform_int_distribution<int>(first, last)(random_); }
    RawMovement Movement(int type, int degree) {
        RawMovement raw{type, From(1, 999999999), From(0, 15)};
        const bool known = From(0, 9) > 0;
        raw.longitude = known ? From(-180 * degree, 180 * degree) : 181 * degree;
        raw.latitude = known ? From(-90 * degree, 90 * degree) : 91 * degree;
        raw.speed = From(0, 1023);
        raw.course = From(0, 3600);
        raw.heading = From(0, 9) > 0 ? From(0, 359) : 511;
        raw.second = From(0, 63);
        return raw;
    }
    std::string Words(int most) {
        const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789./-";
        std::string text(1, 'A');
        for (int i = From(0, most - 1); i > 0; --i) {
            text += letters[static_cast<std::size_t>(From(0, static_cast<int>(letters.size()) - 1))];
        }
        text.erase(text.find_last_not_of(' ') + 1);
        return text;
    }
    static std::string Join(const std::vector<std::string>& lines) {
        std::string text;
        for (const std::string& line : lines) {
            text += line + "\r\n";
        }
        return text;
    }
    std::mt19937 random_;
};

TEST(GpsdecodeTest, RandomSentencesGiveTheSameFacts) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomSentences random(seed);
    std::string sentences;
    for (int i = 0; i < 20000; ++i) {
        sentences += random.Next();
    }
    const Lines ours = Ours(sentences);
    const Lines theirs = Theirs(Gpsdecode(sentences));
    ASSERT_EQ(ours.size(), 20000U);
    ASSERT_EQ(theirs.size(), ours.size());
    for (std::size_t i = 0; i < ours.size(); ++i) {
        ASSERT_EQ(ours[i], theirs[i]) << "message " << i;
    }
}

#endif

}  // namespace
}  // namespace Tarvik::Ais
