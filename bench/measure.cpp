// Runs one command and prints its wall time in milliseconds and its peak resident memory in
// kilobytes, as "wall_ms peak_kb": the yardstick of the start-up comparison. Reading the
// child's own rusage keeps the wrapper itself out of the peak.
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char* argv[]) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s command [arguments...]\n", argv[0]);
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child < 0) {
        std::perror("fork");
        return 2;
    }
    if (child == 0) {
        execvp(argv[1], argv + 1);
        std::fprintf(stderr, "%s: %s\n", argv[1], std::strerror(errno));
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    while (wait4(child, &status, 0, &usage) < 0) {
        if (errno != EINTR) {
            std::perror("wait4");
            return 2;
        }
    }
    const auto wall = std::chrono::steady_clock::now() - start;
    const double wallMs = std::chrono::duration<double, std::milli>(wall).count();
    std::printf("%.3f %ld\n", wallMs, usage.ru_maxrss);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s did not end cleanly (status %d)\n", argv[1], status);
        return 1;
    }
    return 0;
}
