#pragma once

// Limits and pipes as POSIX systems have them; tests that need them are left out elsewhere.
#ifndef _WIN32

#include <csignal>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// As long as it lives, no file grows beyond a size: what a program meets on a full disk.
class TTeliLemez {
public:
    explicit TTeliLemez(rlim_t bajtok) : regiJelzes_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &regi_);
        const rlimit uj{bajtok, regi_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &uj);
    }
    ~TTeliLemez() {
        setrlimit(RLIMIT_FSIZE, &regi_);
        std::signal(SIGXFSZ, regiJelzes_);
    }
    TTeliLemez(const TTeliLemez&) = delete;
    TTeliLemez& operator=(const TTeliLemez&) = delete;

private:
    void (*regiJelzes_)(int);
    rlimit regi_{};
};

/// A process of its own that runs a function until it is killed.
class TGyermek {
public:
    template <typename F>
    explicit TGyermek(F futas) : azonosito_(fork()) {
        if (azonosito_ == 0) {
            futas();
            _exit(0);
        }
    }
    ~TGyermek() { megol(); }
    TGyermek(const TGyermek&) = delete;
    TGyermek& operator=(const TGyermek&) = delete;

    /// At once, without a chance to tidy up; waits for its end.
    void megol() {
        if (azonosito_ <= 0) return;
        kill(azonosito_, SIGKILL);
        waitpid(azonosito_, nullptr, 0);
        azonosito_ = 0;
    }

private:
    pid_t azonosito_;
};

/// A pipe that nobody writes into. Whoever waits for it makes the test end.
class TCsovezetek {
public:
    explicit TCsovezetek(const std::string& fajl) {
        constexpr unsigned tureshatar = 20;  // seconds
        vanCso_ = mkfifo(fajl.c_str(), 0600) == 0;
        alarm(tureshatar);
    }
    ~TCsovezetek() { alarm(0); }
    TCsovezetek(const TCsovezetek&) = delete;
    TCsovezetek& operator=(const TCsovezetek&) = delete;

    bool van() const { return vanCso_; }

private:
    bool vanCso_ = false;
};

#endif
