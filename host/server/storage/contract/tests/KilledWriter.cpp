// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/KilledWriter.h"

#include "host/server/storage/sqlite/tests/WriteScript.h"

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace Tarvik::Server {
namespace {

constexpr char kBegun = 'b';
constexpr char kConfirmed = 'c';

/// The life of the writing process: it tells before and after each write, and goes on until it is killed.
[[noreturn]] void WriteForEver(const StorageOpener& open, int number, int out) {
    const auto storage = open();
    bool good = storage != nullptr;
    for (; good; ++number) {
        good = write(out, &kBegun, 1) == 1 && WriteScript::Write(*storage, number) &&
               write(out, &kConfirmed, 1) == 1;
    }
    _exit(1);
}

/// Busy for a while that has no clock in it.
void Spin(unsigned turns) {
    volatile unsigned turn = 0;
    while (turn < turns) turn = turn + 1;
}

bool TakeWord(int in, WriterWords& words) {
    char word = 0;
    if (read(in, &word, 1) != 1) return false;
    (word == kBegun ? words.begun : words.confirmed) += 1;
    return true;
}

}  // namespace

WriterWords WriteAndKill(const StorageOpener& open, int number, int writes, std::mt19937& random) {
    WriterWords words;
    int ends[2];
    if (pipe(ends) != 0) return words;
    const pid_t writer = fork();
    if (writer == 0) {
        close(ends[0]);
        WriteForEver(open, number, ends[1]);
    }
    close(ends[1]);
    while (words.begun < writes && TakeWord(ends[0], words)) {
    }
    Spin(static_cast<unsigned>(random() % 3000000));
    kill(writer, SIGKILL);
    while (TakeWord(ends[0], words)) {
    }
    close(ends[0]);
    int status = 0;
    waitpid(writer, &status, 0);
    words.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    return words;
}

}  // namespace Tarvik::Server
