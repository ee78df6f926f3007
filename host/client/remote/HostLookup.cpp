// SPDX-License-Identifier: MIT
#include "host/client/remote/HostLookup.h"

#include <future>
#include <memory>
#include <thread>

#include <netdb.h>

namespace Tarvik::Client {

namespace {

using boost::asio::ip::tcp;

struct Found {
    std::vector<tcp::endpoint> endpoints;
    std::string error;
};

tcp::endpoint EndpointOf(const addrinfo& entry, std::uint16_t port) {
    tcp::endpoint endpoint;
    endpoint.resize(entry.ai_addrlen);
    std::copy_n(reinterpret_cast<const char*>(entry.ai_addr), entry.ai_addrlen,
                reinterpret_cast<char*>(endpoint.data()));
    endpoint.port(port);
    return endpoint;
}

Found AskSystem(const std::string& host, std::uint16_t port) {
    addrinfo wanted{};
    wanted.ai_family = AF_UNSPEC;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    Found found;
    const int result = getaddrinfo(host.c_str(), nullptr, &wanted, &list);
    if (result != 0) {
        found.error = "the name " + host + " is not known: " + gai_strerror(result);
    }
    for (const addrinfo* entry = list; entry != nullptr; entry = entry->ai_next) {
        found.endpoints.push_back(EndpointOf(*entry, port));
    }
    if (list != nullptr) {
        freeaddrinfo(list);
    }
    return found;
}

}  // namespace

std::vector<tcp::endpoint> LookUpHost(const std::string& host, std::uint16_t port,
                                      std::chrono::steady_clock::time_point deadline, std::string& error) {
    boost::system::error_code named;
    const auto address = boost::asio::ip::make_address(host, named);
    if (!named) {
        return {tcp::endpoint(address, port)};
    }
    // The system's look-up cannot be broken off, so it has a thread that may be left behind.
    auto promise = std::make_shared<std::promise<Found>>();
    auto future = promise->get_future();
    std::thread([promise, host, port] { promise->set_value(AskSystem(host, port)); }).detach();
    if (future.wait_until(deadline) != std::future_status::ready) {
        error = "the name " + host + " was not found in time";
        return {};
    }
    Found found = future.get();
    error = std::move(found.error);
    return std::move(found.endpoints);
}

}  // namespace Tarvik::Client
