#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bench/figures.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int rounds = 201;
constexpr double ratioLimit = 1.5;
constexpr double timeLimit = 15; // ms

/// Milliseconds from the start of a program to its end.
double measure(std::vector<const char *> arguments)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    arguments.push_back(nullptr);
    const auto begin = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = -1;
    if (posix_spawn(&process, arguments[0], &actions, nullptr, const_cast<char **>(arguments.data()), environ)
            != 0
        || waitpid(process, &status, 0) != process || status != 0) {
        std::fprintf(stderr, "%s failed\n", arguments[0]);
        std::exit(2);
    }
    const auto end = std::chrono::steady_clock::now();
    posix_spawn_file_actions_destroy(&actions);
    return std::chrono::duration<double, std::milli>(end - begin).count();
}

} // namespace

/// `qaz-theme get` against an empty program with the same libraries, in alternating rounds.
int main()
{
    std::vector<double> get;
    std::vector<double> empty;
    for (int round = -1; round < rounds; ++round) {
        const double getTime = measure({QAZ_BINARY_DIR "/bin/qaz-theme", "get", "ScreenSaverDelay"});
        const double emptyTime = measure({QAZ_BINARY_DIR "/bench/emptytool"});
        if (round < 0) // warms the disk cache
            continue;
        get.push_back(getTime);
        empty.push_back(emptyTime);
    }
    const bool timeKept = report("qaz-theme get", median(get), timeLimit, "ms");
    const bool ratioKept = report("qaz-theme get over an empty program", median(get) / median(empty),
                                  ratioLimit, "");
    return timeKept && ratioKept ? 0 : 1;
}
