// SPDX-License-Identifier: MIT
#include "host/client/services/RotatingLog.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

#include <tarvik/core/TrvKernel.h>
#include <tarvik/util/DateTime.h>
#include <tarvik/util/DateTimeUtl.h>

namespace Tarvik::Client {

namespace {

const char* NoticeText(Core::KernelNotice notice) {
    switch (notice) {
        case Core::KernelNotice::NobodyOffers:
            return "nobody offers the service ";
        case Core::KernelNotice::BoundTwice:
            return "bound twice: ";
        case Core::KernelNotice::UnknownUnbind:
            return "unbound without a binding: ";
        case Core::KernelNotice::UnknownName:
            return "unknown name: ";
    }
    return "";
}

}  // namespace

RotatingLog::RotatingLog(std::string file, std::size_t limitBytes, bool verbose)
    : file_(std::move(file)), limit_(limitBytes), verbose_(verbose) {}

void RotatingLog::Write(const std::string& line) {
    const std::string stamped = Util::_datetime_t::gmt_now().fmt(Util::kTimeFormat) + "Z " + line + "\n";
    const std::lock_guard<std::mutex> lock(mutex_);
    if (verbose_) {
        std::fputs(stamped.c_str(), stderr);
    }
    std::error_code failed;
    const auto size = std::filesystem::file_size(file_, failed);
    if (!failed && size + stamped.size() > limit_) {
        std::filesystem::rename(file_, file_ + ".1", failed);
    }
    std::ofstream(file_, std::ios::app | std::ios::binary) << stamped;
}

BusLog::BusLog(RotatingLog& log) : log_(log) {
    Core::TrvKernel::Instance()->SetObserver([this](Core::KernelNotice notice, const std::string& name) {
        const std::string line = std::string("bus: ") + NoticeText(notice) + name;
        if (told_.insert(line).second) {
            log_.Write(line);
        }
    });
}

BusLog::~BusLog() {
    Core::TrvKernel::Instance()->SetObserver({});
}

}  // namespace Tarvik::Client
