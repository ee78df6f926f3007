// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>

#include <boost/asio/io_context.hpp>

#include "host/plugins/ais/input/Retry.h"
#include "host/plugins/ais/input/Source.h"

namespace Tarvik::Ais {

/// A source that is called, fails and is called again. A kind of source says how it is called and read in its
/// Link; what a link tells after it was given up does not count.
class LinkSource : public Source, public std::enable_shared_from_this<LinkSource> {
  public:
    /// One attempt, from its call to its end; kept by its own pending operations.
    class Link : public std::enable_shared_from_this<Link> {
      public:
        virtual ~Link() = default;
        /// Begins; tells the source of opening, bytes and failure.
        virtual void Call(const std::shared_ptr<LinkSource>& source) = 0;
        /// Ends all pending operations.
        virtual void Hang() = 0;
    };
    /// Makes the next attempt's link.
    using LinkMaker = std::function<std::shared_ptr<Link>()>;

    LinkSource(LinkMaker maker, SourceTaker taker) : maker_(std::move(maker)), taker_(std::move(taker)) {}

    void Tick(std::int64_t now) override;
    void Close() override;
    SourceState State() const override;

    ///@{
    /// Told by a link; false when it is not the source's any more and must end.
    bool Opened(const Link& link);
    bool Heard(const Link& link, std::string_view bytes);
    void Failed(const Link& link, const std::string& error);
    ///@}

  private:
    void Drop();

    LinkMaker maker_;
    SourceTaker taker_;
    std::shared_ptr<Link> link_;
    Retry retry_;
    std::int64_t now_ = 0;
};

/// Bytes that are read at once; the system's buffer holds back what comes faster than it is decoded.
inline constexpr std::size_t kReadSize = 65536;

/// The links of each kind.
std::shared_ptr<LinkSource::Link> MakeTcpLink(boost::asio::io_context& io, const InputAddress& address);
std::shared_ptr<LinkSource::Link> MakeUdpLink(boost::asio::io_context& io, const InputAddress& address);
std::shared_ptr<LinkSource::Link> MakeSerialLink(boost::asio::io_context& io, const InputAddress& address);

}  // namespace Tarvik::Ais
