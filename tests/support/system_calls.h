// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <functional>
#include <string_view>

/// Lets a test stand between the program and the system: every call that changes files asks a hook
/// first. The definitions below take the place of the C library's in the whole executable, so one
/// test file, and only one, includes this header.
namespace nubivane::testing::system_calls {

/// A call that is about to be made, and what is to become of it.
struct Call {
    std::string_view name;
    std::size_t count = 0;  ///< bytes to write; may be made less
    int error = 0;          ///< unless 0, the call fails with this and is not made
    bool last = false;      ///< the process ends once the call is made
};

using Hook = std::function<void(Call&)>;
inline std::atomic<Hook*> active = nullptr;

/// Has a hook asked while it lives, on whichever one thread writes. The hook's own calls are not
/// shown to it.
class Watch {
  public:
    explicit Watch(Hook hook) : hook_(std::move(hook)) { active = &hook_; }
    ~Watch() { active = nullptr; }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    Hook hook_;
};

template <class Function>
Function* original(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

template <class Make>
auto made(const char* name, std::size_t count, const Make& make) -> decltype(make(count)) {
    Hook* const hook = active.exchange(nullptr);
    if (!hook) {
        return make(count);
    }
    Call call{name, count};
    (*hook)(call);
    active = hook;
    if (call.error != 0) {
        errno = call.error;
        return -1;
    }
    const auto result = make(call.count);
    if (call.last) {
        ::_exit(0);
    }
    return result;
}

/// What threads wake each other with, and what goes to a server, is no file.
inline bool isOrdinaryFile(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace nubivane::testing::system_calls

// The labels give the C library's names to functions that its headers have not declared, some of
// which they would not let be defined.
#define NUBIVANE_CALL(name, result, parameters, arguments)                             \
    extern "C" __attribute__((visibility("default")))                                  \
    result nubivane_test_##name parameters __asm__(#name);                             \
    extern "C" result nubivane_test_##name parameters {                                \
        namespace calls = nubivane::testing::system_calls;                             \
        static auto* const original = calls::original<result parameters>(#name);       \
        return calls::made(#name, 0, [&](std::size_t) { return original arguments; }); \
    }

NUBIVANE_CALL(rename, int, (const char* from, const char* to), (from, to))
NUBIVANE_CALL(renameat2, int,
              (int fromFolder, const char* from, int toFolder, const char* to, unsigned flags),
              (fromFolder, from, toFolder, to, flags))
NUBIVANE_CALL(unlink, int, (const char* path), (path))
NUBIVANE_CALL(fsync, int, (int file), (file))
NUBIVANE_CALL(fdatasync, int, (int file), (file))
NUBIVANE_CALL(ftruncate64, int, (int file, off_t size), (file, size))
NUBIVANE_CALL(fchmod, int, (int file, mode_t mode), (file, mode))
NUBIVANE_CALL(chmod, int, (const char* path, mode_t mode), (path, mode))
NUBIVANE_CALL(mkdir, int, (const char* path, mode_t mode), (path, mode))
NUBIVANE_CALL(link, int, (const char* from, const char* to), (from, to))
NUBIVANE_CALL(flock, int, (int file, int operation), (file, operation))
NUBIVANE_CALL(fchown, int, (int file, uid_t user, gid_t group), (file, user, group))
NUBIVANE_CALL(futimens, int, (int file, const void* times), (file, times))
NUBIVANE_CALL(dup, int, (int file), (file))

#undef NUBIVANE_CALL

extern "C" __attribute__((visibility("default"))) ssize_t nubivane_test_write(
    int file, const void* bytes, std::size_t count) __asm__("write");
extern "C" ssize_t nubivane_test_write(int file, const void* bytes, std::size_t count) {
    namespace calls = nubivane::testing::system_calls;
    static auto* const original = calls::original<ssize_t(int, const void*, std::size_t)>("write");
    if (!calls::isOrdinaryFile(file)) {
        return original(file, bytes, count);
    }
    return calls::made("write", count,
                       [&](std::size_t allowed) { return original(file, bytes, allowed); });
}

// Opening for reading changes nothing and is not shown.
#define NUBIVANE_OPEN(name)                                                                     \
    extern "C" __attribute__((visibility("default"))) int nubivane_test_##name(                 \
        const char* path, int flags, mode_t mode) __asm__(#name);                               \
    extern "C" int nubivane_test_##name(const char* path, int flags, mode_t mode) {             \
        namespace calls = nubivane::testing::system_calls;                                      \
        static auto* const original = calls::original<int(const char*, int, mode_t)>(#name);    \
        if ((flags & O_ACCMODE) == O_RDONLY) {                                                  \
            return original(path, flags, mode);                                                 \
        }                                                                                       \
        return calls::made(#name, 0, [&](std::size_t) { return original(path, flags, mode); }); \
    }

NUBIVANE_OPEN(open)
NUBIVANE_OPEN(open64)

#undef NUBIVANE_OPEN
