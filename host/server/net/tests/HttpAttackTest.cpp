// SPDX-License-Identifier: MIT
// What strangers may send: sizes and slowness at every place of a request, with and without TLS. Whatever
// comes, the server refuses it, ends that connection, grows by next to nothing, and serves everybody else.
#include <chrono>

#include "host/server/net/tests/HttpAttack.h"

namespace Tarvik::Server {

namespace {

INSTANTIATE_TEST_SUITE_P(Wires, HttpAttack, testing::Values(Wire::Plain, Wire::Tls),
                         [](const auto& one) { return one.param == Wire::Tls ? "Tls" : "Plain"; });

TEST_P(HttpAttack, LongTrailerLine) {
    for (const std::size_t size : {1000U, 20'000U, 66'000U, 200'000U}) {
        RawClient client = Connect();
        client.Send(Chunked() + "0\r\nX: " + std::string(size, 'a') + "\r\n\r\n");
        EXPECT_EQ(client.Read().status, size < 30'000U ? 400 : 431) << size;
    }
    ExpectServes();
}

TEST_P(HttpAttack, EndlessTrailer) {
    ExpectRefusedCheaply(Chunked() + "0\r\nX: ", std::string(65536, 'a'), 431);
}

TEST_P(HttpAttack, EndlessTrailerOfManyFields) {
    ExpectRefusedCheaply(Chunked() + "0\r\n", "Name: value\r\n", 431);
}

TEST_P(HttpAttack, EndlessExtension) {
    ExpectRefusedCheaply(Chunked() + "1;", std::string(65536, 'x'), 431);
}

TEST_P(HttpAttack, ManyExtensions) {
    ExpectRefusedCheaply(Chunked(), "1;" + std::string(20'000, 'x') + "\r\ny\r\n", 413);
}

TEST_P(HttpAttack, EndlessChunkSize) {
    ExpectRefusedCheaply(Chunked(), std::string(65536, '0'), 431);
}

TEST_P(HttpAttack, EndlessHeads) {
    ExpectRefusedCheaply("GET /", std::string(65536, 'a'), 431);
    ExpectRefusedCheaply("GET /health HTTP/1.1\r\n", "Name: value\r\n", 431);
    ExpectRefusedCheaply("GET /health HTTP/1.1\r\nX: ", std::string(65536, 'a'), 431);
}

TEST_P(HttpAttack, ChunksOfImpossibleSize) {
    for (const char* size : {"FFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFFFFF", "7FFFFFFFFFFFFFFF", "-1", "", " 1"}) {
        RawClient client = Connect();
        client.Send(Chunked() + size + "\r\nx\r\n0\r\n\r\n");
        const int status = client.Read().status;
        EXPECT_TRUE(status == 400 || status == 413) << size << " " << status;
    }
    ExpectServes();
}

TEST_P(HttpAttack, FramingThatTwoCouldReadDifferently) {
    for (const std::string fields :
         {"Transfer-Encoding: gzip\r\n", "Transfer-Encoding: gzip, chunked\r\n",
          "Transfer-Encoding: identity\r\n", "Transfer-Encoding: chunked, chunked\r\n",
          "Transfer-Encoding: chunked\r\nTransfer-Encoding: chunked\r\n",
          "Transfer-Encoding: gzip\r\nTransfer-Encoding: chunked\r\n",
          "Transfer-Encoding: chunked\r\nContent-Length: 2\r\n", "Content-Length: 2\r\nContent-Length: 3\r\n",
          "Content-Length: 2\r\nTransfer-Encoding: chunked\r\n", "Content-Length: -1\r\n",
          "Content-Length: 99999999999999999999\r\n"}) {
        RawClient client = Connect();
        client.Send("POST /v1/login HTTP/1.1\r\n" + fields + "\r\n0\r\n\r\nGET /health HTTP/1.1\r\n\r\n");
        EXPECT_EQ(client.Read().status, 400) << fields;
        EXPECT_TRUE(client.SeesEnd()) << fields;
    }
}

TEST_P(HttpAttack, StrangersLargeBodyIsNotRead) {
    const std::string head = "POST /v1/exchange HTTP/1.1\r\nHost: x\r\nAuthorization: Bearer " +
                             std::string(43, 'A') + "\r\nContent-Length: 2000000\r\n\r\n";
    RawClient announced = Connect();
    announced.Send(head);
    EXPECT_EQ(announced.Read().status, 401);
    RawClient chunked = Connect();
    chunked.Send(Chunked("/v1/exchange"));
    EXPECT_EQ(chunked.Read().status, 401);
    ExpectRefusedCheaply(head, std::string(65536, 'x'), 401);
}

TEST_P(HttpAttack, ConnectionOfAStrangerCostsLessThanAMegabyte) {
    constexpr std::size_t kMany = 40;
    ExpectServes();
    const std::size_t before = Resident();
    std::vector<std::unique_ptr<RawClient>> clients;
    for (std::size_t i = 0; i < kMany; ++i) {
        clients.push_back(std::make_unique<RawClient>(server_->Port(), GetParam()));
        clients.back()->Send("POST /v1/exchange HTTP/1.1\r\nAuthorization: Bearer " + std::string(43, 'A') +
                             "\r\nContent-Length: 65536\r\n\r\n" + std::string(65000, 'x'));
    }
    ExpectServes();
    EXPECT_TRUE(!kMemoryIsMeasured || Resident() < before + kMany * kMegabyte) << Resident() - before;
}

TEST_P(HttpAttack, SlownessAtAnyPlaceEndsInTime) {
    const auto begin = std::chrono::steady_clock::now();
    std::vector<std::unique_ptr<RawClient>> clients;
    for (const std::string& bytes :
         {std::string("P"), std::string("POST /v1/login HTTP/1.1\r\nHo"), Chunked() + "1;x",
          Chunked() + "2\r\n{", Chunked() + "2\r\n{}\r\n0\r\nX: y", Chunked() + "2\r\n{}\r\n0\r\n",
          std::string("POST /v1/login HTTP/1.1\r\nContent-Length: 5\r\n\r\n{")}) {
        clients.push_back(std::make_unique<RawClient>(server_->Port(), GetParam()));
        clients.back()->Send(bytes);
    }
    for (const auto& client : clients) {
        EXPECT_TRUE(client->SeesEnd() || GetParam() == Wire::Tls);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(8));
    ExpectServes();
}

}  // namespace
}  // namespace Tarvik::Server
