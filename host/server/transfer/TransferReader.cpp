// SPDX-License-Identifier: MIT
#include "host/server/transfer/TransferReader.h"

#include <utility>

#include <nlohmann/json.hpp>

#include "host/server/transfer/CopyJson.h"

namespace Tarvik::Server {

namespace {

using Json = nlohmann::ordered_json;

}  // namespace

TransferReader::TransferReader(const std::string& path) : path_(path), in_(path, std::ios::binary) {
    Rewind();
}

std::unique_ptr<TransferReader> TransferReader::Open(const std::string& path, std::string& error) {
    std::unique_ptr<TransferReader> reader(new TransferReader(path));
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
        content.categories += user->records.categories.size();
        for (const CategoryCopy& category : user->records.categories) {
            content.voyages += category.voyages.size();
        }
        content.remarks += user->records.remarks.size();
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
        if (kind != "user") {
            return TakeRecord(kind, object);
        }
        UserCopy next = CopyJson::ReadUser(object);
        std::string wrong = progress_->check.User(next);
        done = std::exchange(progress_->open, std::move(next));
        return wrong;
    } catch (const std::exception& failure) {
        return std::string("this record is damaged: ") + failure.what();
    }
}

std::string TransferReader::TakeRecord(const std::string& kind, const Json& object) {
    if (!progress_->open) {
        return "there is no user before this record";
    }
    OwnerCopy& records = progress_->open->records;
    CopyCheck& check = progress_->check;
    if (kind == "category") {
        records.categories.push_back(CopyJson::ReadCategory(object));
        return check.Category(records.categories.back());
    }
    if (kind == "voyage") {
        if (records.categories.empty()) {
            return "there is no category before this voyage";
        }
        records.categories.back().voyages.push_back(CopyJson::ReadVoyage(object));
        return check.Voyage(records.categories.back().voyages.back());
    }
    if (kind == "remark") {
        records.remarks.push_back(CopyJson::ReadRemark(object));
        return check.Remark(records.remarks.back());
    }
    return "there are no such records";
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
