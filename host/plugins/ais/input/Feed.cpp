// SPDX-License-Identifier: MIT
#include "host/plugins/ais/input/Feed.h"

#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>

#include "host/plugins/ais/input/MinuteCount.h"

namespace Tarvik::Ais {

namespace {

namespace asio = boost::asio;

constexpr auto kTick = std::chrono::milliseconds(100);
constexpr std::int64_t kFlushEvery = 5'000;     ///< ms
constexpr std::int64_t kThinEvery = 3'600'000;  ///< ms

std::int64_t SteadyMs() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// An input with its decoder.
struct Input {
    std::string name;
    std::shared_ptr<Source> source;
    std::unique_ptr<Decoder> decoder;
};

std::uint64_t Faults(const Decoder& decoder) {
    std::uint64_t faults = 0;
    for (const Cause cause : {Cause::TooLong, Cause::Cut, Cause::BadChecksum, Cause::BadFields,
                              Cause::BadPayload, Cause::TooShort, Cause::LostPart}) {
        faults += decoder.Count(cause);
    }
    return faults;
}

}  // namespace

class Feed::Worker {
  public:
    Worker(Traffic& traffic, UtcClock utcNow) : traffic_(traffic), utcNow_(std::move(utcNow)), timer_(io_) {
        Await();
        thread_ = std::thread([this] { io_.run(); });
    }
    ~Worker() {
        asio::post(io_, [this] {
            CloseAll();
            io_.stop();
        });
        thread_.join();
    }

    void SetInputs(std::vector<std::pair<InputAddress, std::string>> inputs) {
        asio::post(io_, [this, inputs = std::move(inputs)] {
            CloseAll();
            counts_.messages = 0;
            for (const auto& [address, name] : inputs) {
                Open(address, name);
            }
            Turn();
        });
    }
    void OnMessages(std::function<void()> told) {
        asio::post(io_, [this, told = std::move(told)]() mutable { told_ = std::move(told); });
    }
    FeedStatus Status() const {
        const std::lock_guard lock(shared_.mutex);
        return shared_.status;
    }

  private:
    void Open(const InputAddress& address, const std::string& name) {
        auto decoder = std::make_unique<Decoder>([this](const Message& message) {
            ++counts_.messages;
            traffic_.Take(message, times_.reading);
        });
        Decoder* reads = decoder.get();
        SourceTaker taker{[this, reads](std::string_view bytes) {
                              times_.reading = utcNow_();
                              reads->Take(bytes, SteadyMs());
                          },
                          [reads] { reads->Restart(); }};
        inputs_.push_back({name, Source::Make(io_, address, std::move(taker)), std::move(decoder)});
    }
    void CloseAll() {
        for (const Input& input : inputs_) {
            input.source->Close();
        }
        inputs_.clear();
    }
    void Await() {
        timer_.expires_after(kTick);
        timer_.async_wait([this](boost::system::error_code error) {
            if (!error) {
                Turn();
                Await();
            }
        });
    }
    void Turn() {
        const std::int64_t now = SteadyMs();
        for (const Input& input : inputs_) {
            input.source->Tick(now);
        }
        if (now - times_.flushed >= kFlushEvery) {
            times_.flushed = now;
            traffic_.Flush();
        }
        if (now - times_.thinned >= kThinEvery) {
            times_.thinned = now;
            traffic_.Thin(utcNow_());
        }
        const bool heard = counts_.messages != counts_.counted;
        counts_.minute.Add(
            now, counts_.messages >= counts_.counted ? counts_.messages - counts_.counted : counts_.messages);
        counts_.counted = counts_.messages;
        Publish(now);
        if (heard && told_) {
            told_();
        }
    }
    void Publish(std::int64_t now) {
        FeedStatus status;
        status.perMinute = counts_.minute.At(now);
        status.messages = counts_.messages;
        status.inputs = static_cast<int>(inputs_.size());
        for (const Input& input : inputs_) {
            const SourceState state = input.source->State();
            status.open += state.open ? 1 : 0;
            status.openings += state.openings;
            status.faults += Faults(*input.decoder);
            if (!state.error.empty()) {
                status.error = input.name + ": " + state.error;
            }
        }
        if (const std::string error = traffic_.Error(); !error.empty()) {
            status.error = error;
        }
        const std::lock_guard lock(shared_.mutex);
        shared_.status = std::move(status);
    }

    Traffic& traffic_;
    UtcClock utcNow_;
    asio::io_context io_{1};
    asio::steady_timer timer_;
    std::vector<Input> inputs_;
    std::function<void()> told_;
    struct Times {
        std::int64_t reading = 0;  ///< UTC of the bytes that are read
        std::int64_t flushed = SteadyMs();
        std::int64_t thinned = 0;
    };
    Times times_;
    struct Counts {
        std::uint64_t messages = 0;
        std::uint64_t counted = 0;  ///< of them in the minute
        MinuteCount minute;
    };
    Counts counts_;
    struct Shared {
        std::mutex mutex;
        FeedStatus status;
    };
    mutable Shared shared_;
    std::thread thread_;
};

Feed::Feed(Traffic& traffic, UtcClock utcNow)
    : worker_(std::make_unique<Worker>(traffic, std::move(utcNow))) {}

Feed::~Feed() = default;

void Feed::SetInputs(const std::vector<std::pair<InputAddress, std::string>>& inputs) {
    worker_->SetInputs(inputs);
}

FeedStatus Feed::Status() const {
    return worker_->Status();
}

void Feed::OnMessages(std::function<void()> told) {
    worker_->OnMessages(std::move(told));
}

}  // namespace Tarvik::Ais
