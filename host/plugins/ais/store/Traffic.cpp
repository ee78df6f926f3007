// SPDX-License-Identifier: MIT
#include "host/plugins/ais/store/Traffic.h"

#include <exception>
#include <map>

namespace Tarvik::Ais {

Traffic::Traffic(const std::string& file, std::int64_t now) {
    if (file.empty()) {
        return;
    }
    try {
        writer_ = std::make_unique<TrackStore>(file);
        reader_ = std::make_unique<TrackStore>(file);
        for (const Vessel& vessel : writer_->Load(now)) {
            vessels_.Restore(vessel);
        }
    } catch (const std::exception& failure) {
        writer_.reset();
        reader_.reset();
        error_ = failure.what();
    }
}

Traffic::~Traffic() {
    Flush();
}

void Traffic::Take(const Message& message, std::int64_t now) {
    const std::lock_guard lock(mutex_);
    vessels_.Take(message, now, waiting_);
    if (waiting_.size() > kMostWaiting) {
        waiting_.erase(waiting_.begin(), waiting_.begin() + kMostWaiting / 2);
    }
}

void Traffic::Flush() {
    if (!writer_) {
        return;  // what waits is all there is of the tracks; Take keeps it within bounds
    }
    std::vector<Vessel> renamed;
    {
        const std::lock_guard lock(mutex_);
        renamed = vessels_.TakeRenamed();
        writing_.swap(waiting_);
        for (const KeptFix& fix : writing_) {
            if (const Vessel* vessel = vessels_.Find(fix.mmsi); vessel != nullptr) {
                renamed.push_back(*vessel);
            }
        }
    }
    std::string error;
    try {
        writer_->Write(writing_, renamed);
    } catch (const std::exception& failure) {
        error = failure.what();
    }
    const std::lock_guard lock(mutex_);
    if (!error.empty()) {
        waiting_.insert(waiting_.begin(), writing_.begin(), writing_.end());
    }
    writing_.clear();
    error_ = error;
}

void Traffic::Thin(std::int64_t now) {
    try {
        if (writer_) {
            writer_->Thin(now);
        }
    } catch (const std::exception& failure) {
        Note(failure.what());
    }
}

std::optional<Vessel> Traffic::Find(std::uint32_t mmsi) const {
    const std::lock_guard lock(mutex_);
    const Vessel* vessel = vessels_.Find(mmsi);
    return vessel == nullptr ? std::nullopt : std::optional(*vessel);
}

std::vector<Vessel> Traffic::HeardSince(std::int64_t since) const {
    const std::lock_guard lock(mutex_);
    std::vector<Vessel> found;
    for (const auto& [mmsi, vessel] : vessels_.All()) {
        if (vessel.hasFix && vessel.heard >= since) {
            found.push_back(vessel);
        }
    }
    return found;
}

std::vector<Fix> Traffic::Track(std::uint32_t mmsi, std::int64_t begin, std::int64_t end) const {
    std::map<std::int64_t, Fix> track;
    const auto add = [&](const Fix& fix) {
        if (fix.time >= begin && fix.time <= end) {
            track[fix.time] = fix;
        }
    };
    {
        // Memory first: what is written meanwhile is then found twice and not lost.
        const std::lock_guard lock(mutex_);
        for (const auto* fixes : {&writing_, &waiting_}) {
            for (const KeptFix& kept : *fixes) {
                if (kept.mmsi == mmsi) {
                    add(kept.fix);
                }
            }
        }
        const Vessel* vessel = vessels_.Find(mmsi);
        if (vessel != nullptr && vessel->hasFix) {
            add(vessel->last);
        }
    }
    try {
        if (reader_) {
            for (const Fix& fix : reader_->Track(mmsi, begin, end)) {
                track.emplace(fix.time, fix);
            }
        }
    } catch (const std::exception&) {
        // What memory has is better than nothing; the writer meets the same fault and tells it.
    }
    std::vector<Fix> fixes;
    fixes.reserve(track.size());
    for (const auto& [time, fix] : track) {
        fixes.push_back(fix);
    }
    return fixes;
}

void Traffic::Watch(std::uint32_t mmsi) {
    const std::lock_guard lock(mutex_);
    vessels_.Watch(mmsi);
}

std::string Traffic::Error() const {
    const std::lock_guard lock(mutex_);
    return error_;
}

void Traffic::Note(const std::string& error) {
    const std::lock_guard lock(mutex_);
    error_ = error;
}

}  // namespace Tarvik::Ais
