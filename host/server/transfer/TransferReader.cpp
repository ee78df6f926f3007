// SPDX-License-Identifier: MIT
#include "host/server/transfer/TransferReader.h"

#include <utility>

#include <nlohmann/json.hpp>

#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

namespace {

using Json = nlohmann::ordered_json;

/// Whether lines of this kind stand behind a user's.
bool IsOfUser(const std::string& kind) {
    return kind == "category" || kind == "voyage" || kind == "remark" || kind == "vessel" || kind == "place";
}

}  // namespace

TransferReader::TransferReader(const std::string& path, bool skipBad)
    : path_(path), skipBad_(skipBad), in_(path, std::ios::binary) {
    Rewind();
}

std::unique_ptr<TransferSource> OpenTransferSource(const std::string& path, bool skipBad,
                                                   std::string& error) {
    return TransferReader::Open(path, error, skipBad);
}

std::unique_ptr<TransferReader> TransferReader::Open(const std::string& path, std::string& error,
                                                     bool skipBad) {
    std::unique_ptr<TransferReader> reader(new TransferReader(path, skipBad));
    // A folder opens but does not read.
    if (reader->in_ && reader->in_.peek() != std::ifstream::traits_type::eof()) {
        reader->Rewind();
        return reader;
    }
    error = path + " cannot be read, or is empty";
    return nullptr;
}

bool TransferReader::ReadContent(TransferContent& content, std::string& error) {
    Rewind();
    content = TransferContent();
    std::optional<UserCopy> user;
    while (Next(user, error)) {
        if (!user) {
            content.lowestId = progress_->check.LowestId();
            content.highestId = progress_->check.HighestId();
            return true;
        }
        content.users.push_back({user->records.owner, user->account});
        Count(user->records, content);
    }
    return false;
}

void TransferReader::Rewind() {
    in_.clear();
    in_.seekg(0);
    progress_ = std::make_unique<Progress>();
}

bool TransferReader::Next(std::optional<UserCopy>& user, std::string& error) {
    user.reset();
    std::string line;
    while (!progress_->ended) {
        if (!ReadLine(line, error)) {
            return false;
        }
        const std::string wrong = Take(line, user);
        if (!wrong.empty()) {
            error = path_ + ", line " + std::to_string(progress_->lines + 1) + ": " + wrong;
            return false;
        }
        if (!progress_->ended) {
            progress_->checksum.Add(line + "\n");
            ++progress_->lines;
        }
        if (user) {
            return true;
        }
    }
    user = std::exchange(progress_->open, std::nullopt);
    return true;
}

bool TransferReader::ReadLine(std::string& line, std::string& error) {
    if (std::getline(in_, line)) {
        return true;
    }
    error = path_ + " is cut short after line " + std::to_string(progress_->lines);
    return false;
}

std::string TransferReader::Take(const std::string& line, std::optional<UserCopy>& done) {
    const Json object = Json::parse(line, nullptr, false);
    if (!object.is_object() || object.empty()) {
        return "this is no record, or one that was cut";
    }
    const std::string& kind = object.begin().key();
    try {
        if (progress_->lines == 0) {
            return TakeHead(object);
        }
        if (kind == "end") {
            return TakeEnd(object);
        }
        return kind == "user" ? TakeUser(object, done) : TakeRecord(kind, object);
    } catch (const std::exception& failure) {
        return Skip(kind, object, std::string("this record is damaged: ") + failure.what());
    }
}

std::string TransferReader::TakeUser(const Json& object, std::optional<UserCopy>& done) {
    done = std::exchange(progress_->open, std::nullopt);
    progress_->skipUser = true;
    UserCopy next = CopyJson::ReadUser(object);
    std::string wrong = progress_->check.User(next);
    if (!wrong.empty()) {
        return Skip("user", object, std::move(wrong));
    }
    progress_->open = std::move(next);
    progress_->skipUser = false;
    progress_->skipCategory = false;
    return {};
}

std::string TransferReader::TakeRecord(const std::string& kind, const Json& object) {
    if (!IsOfUser(kind)) {
        return "there are no such records";
    }
    if (progress_->skipUser) {
        return Skip(kind, object, "its user was left out");
    }
    if (!progress_->open) {
        return "there is no user before this record";
    }
    if (kind == "category") {
        return TakeCategory(object);
    }
    if (kind == "vessel") {
        return TakeVessel(object);
    }
    if (kind == "place") {
        return TakePlace(object);
    }
    return kind == "voyage" ? TakeVoyage(object) : TakeRemark(object);
}

std::string TransferReader::TakeCategory(const Json& object) {
    progress_->skipCategory = true;
    CategoryCopy category = CopyJson::ReadCategory(object);
    std::string wrong = progress_->check.Category(category);
    if (!wrong.empty()) {
        return Skip("category", object, std::move(wrong));
    }
    progress_->skipCategory = false;
    progress_->open->records.categories.push_back(std::move(category));
    return {};
}

std::string TransferReader::TakeVoyage(const Json& object) {
    if (progress_->skipCategory) {
        return Skip("voyage", object, "its category was left out");
    }
    std::vector<CategoryCopy>& categories = progress_->open->records.categories;
    if (categories.empty()) {
        return "there is no category before this voyage";
    }
    VoyageCopy voyage = CopyJson::ReadVoyage(object);
    std::string wrong = progress_->check.Voyage(voyage);
    if (!wrong.empty()) {
        return Skip("voyage", object, std::move(wrong));
    }
    categories.back().voyages.push_back(std::move(voyage));
    return {};
}

std::string TransferReader::TakeRemark(const Json& object) {
    RemarkCopy remark = CopyJson::ReadRemark(object);
    std::string wrong = progress_->check.Remark(remark);
    if (!wrong.empty()) {
        return Skip("remark", object, std::move(wrong));
    }
    progress_->open->records.remarks.push_back(std::move(remark));
    return {};
}

std::string TransferReader::TakeVessel(const Json& object) {
    FleetRecord vessel = CopyJson::ReadVessel(object);
    std::string wrong = progress_->check.Vessel(vessel);
    if (!wrong.empty()) {
        return Skip("vessel", object, std::move(wrong));
    }
    progress_->open->records.fleet.push_back(std::move(vessel));
    return {};
}

std::string TransferReader::TakePlace(const Json& object) {
    PlaceRecord place = CopyJson::ReadPlace(object);
    std::string wrong = progress_->check.Place(place);
    if (!wrong.empty()) {
        return Skip("place", object, std::move(wrong));
    }
    progress_->open->records.places.push_back(std::move(place));
    return {};
}

std::string TransferReader::Skip(const std::string& kind, const Json& object, std::string wrong) {
    if (!skipBad_ || (kind != "user" && !IsOfUser(kind))) {
        return wrong;
    }
    const auto name = object.find("name");
    progress_->leftOut.push_back(kind + " " + object.at(kind).dump() +
                                 (name == object.end() ? std::string() : " " + name->dump()) + " of line " +
                                 std::to_string(progress_->lines + 1) + ": " + wrong);
    return {};
}

std::string TransferReader::TakeHead(const Json& object) const {
    if (object.value("format", "") != kTransferFormat) {
        return "this is no file of exported users";
    }
    const int version = object.at("version").get<int>();
    if (version == kTransferVersion) {
        return {};
    }
    return "the file has version " + std::to_string(version) +
           ", made by another program; this one reads version " + std::to_string(kTransferVersion);
}

std::string TransferReader::TakeEnd(const Json& object) {
    if (object.at("end").get<std::size_t>() != progress_->lines) {
        return "lines are missing";
    }
    if (object.at("sha256").get<std::string>() != progress_->checksum.Finish()) {
        return "the file was altered";
    }
    if (in_.peek() != std::ifstream::traits_type::eof()) {
        return "there is more behind the end";
    }
    progress_->ended = true;
    return {};
}

}  // namespace Tarvik::Server
