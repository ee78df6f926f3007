// SPDX-License-Identifier: MIT
// Loaded into the client before its own libraries: kills the client at a given write to its voyage data base,
// as a power failure or an impatient person would. KILL_AT names the write, counted from 1; with 0 nothing is
// killed and the number of writes goes to the file of KILL_COUNT at the end.
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <string>
#include <sys/types.h>
#include <unistd.h>

namespace {

/// Counts writes; made at the first, gone at the end of the program.
class Counter {
  public:
    Counter() {
        const char* at = std::getenv("KILL_AT");
        killAt_ = at ? std::atol(at) : 0;
    }
    ~Counter() {
        const char* file = std::getenv("KILL_COUNT");
        if (file) {
            std::ofstream(file) << count_;
        }
    }
    Counter(const Counter&) = delete;
    Counter& operator=(const Counter&) = delete;

    void Note(int descriptor) {
        char path[PATH_MAX] = {};
        const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
        if (readlink(link.c_str(), path, sizeof path - 1) < 0) {
            return;
        }
        if (std::strstr(path, "/voyages.db") != nullptr && ++count_ == killAt_) {
            raise(SIGKILL);
        }
    }

  private:
    long killAt_ = 0;
    long count_ = 0;
};

Counter& WriteCounter() {
    static Counter made;
    return made;
}

template <class Function>
Function Next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) ssize_t pwrite64(int descriptor, const void* bytes, std::size_t size,
                                                        off64_t place) {
    static const auto real = Next<ssize_t (*)(int, const void*, std::size_t, off64_t)>("pwrite64");
    WriteCounter().Note(descriptor);
    return real(descriptor, bytes, size, place);
}

__attribute__((visibility("default"))) int fdatasync(int descriptor) {
    static const auto real = Next<int (*)(int)>("fdatasync");
    WriteCounter().Note(descriptor);
    return real(descriptor);
}

__attribute__((visibility("default"))) int fsync(int descriptor) {
    static const auto real = Next<int (*)(int)>("fsync");
    WriteCounter().Note(descriptor);
    return real(descriptor);
}

}  // extern "C"
