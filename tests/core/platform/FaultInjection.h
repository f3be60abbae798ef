#pragma once

#include "core/platform/SystemCalls.h"

#include <array>
#include <cerrno>
#include <functional>
#include <utility>
#include <vector>

namespace tavrin::test {

// The calls of the system-call table a fault can be injected into.
enum class Call { RenameNoReplace, Rename, Link, Unlink, Open, Write, Sync, Count };

struct Fault {
    Fault(Call faulty, int which, int errorNumber, bool afterTheWork = false,
        std::function<void(const char*)> beforeTheCall = {})
        : call(faulty)
        , nth(which)
        , error(errorNumber)
        , afterDoing(afterTheWork)
        , before(std::move(beforeTheCall))
    {
    }

    Call call;
    int nth; // the first call is 1; 0 means every call
    int error; // 0: the call is made as usual (after `before`, when there is one)
    bool afterDoing; // the call does its work and reports the error all the same
    // Runs just before the call, with its target (or path): a racing process, for instance.
    std::function<void(const char* path)> before;
};

// Puts faults into the system-call table for the life of the object, then the real calls back.
class InjectedFaults {
public:
    explicit InjectedFaults(std::vector<Fault> faults)
    {
        state() = {std::move(faults), {}, 0};
        SystemCalls& calls = systemCalls();
        calls.renameNoReplace = [](const char* s, const char* t) {
            return hook(Call::RenameNoReplace, t, [&] { return realSystemCalls().renameNoReplace(s, t); });
        };
        calls.rename = [](const char* s, const char* t) {
            return hook(Call::Rename, t, [&] { return realSystemCalls().rename(s, t); });
        };
        calls.link = [](const char* s, const char* t) {
            return hook(Call::Link, t, [&] { return realSystemCalls().link(s, t); });
        };
        calls.unlink = [](const char* p) { return hook(Call::Unlink, p, [&] { return realSystemCalls().unlink(p); }); };
        calls.open = [](const char* p, int flags, mode_t mode) {
            return hook(Call::Open, p, [&] { return realSystemCalls().open(p, flags, mode); });
        };
        calls.pwrite = [](int fd, const void* bytes, size_t count, off_t offset) {
            return hook(Call::Write, "", [&] { return realSystemCalls().pwrite(fd, bytes, count, offset); });
        };
        calls.fsync = [](int fd) { return hook(Call::Sync, "", [&] { return realSystemCalls().fsync(fd); }); };
    }
    ~InjectedFaults() { systemCalls() = realSystemCalls(); }
    InjectedFaults(const InjectedFaults&) = delete;
    InjectedFaults& operator=(const InjectedFaults&) = delete;

    static int calls(Call call) { return state().counts[size_t(call)]; }
    // How many calls were made to fail.
    static int injected() { return state().injected; }

private:
    struct State {
        std::vector<Fault> faults;
        std::array<int, size_t(Call::Count)> counts {};
        int injected = 0;
    };
    static State& state()
    {
        static State instance;
        return instance;
    }

    template <typename Real>
    static auto hook(Call call, const char* path, Real real) -> decltype(real())
    {
        const int count = ++state().counts[size_t(call)];
        for (const Fault& fault : state().faults) {
            if (fault.call != call || (fault.nth != 0 && fault.nth != count))
                continue;
            if (fault.before)
                fault.before(path);
            if (fault.error == 0)
                break;
            ++state().injected;
            if (fault.afterDoing && real() < 0)
                return -1;
            errno = fault.error;
            return -1;
        }
        return real();
    }
};

}  // namespace tavrin::test
