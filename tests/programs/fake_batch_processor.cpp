// Stands in for the batch processor in tests: takes its time like a script would, then leaves
// "<last argument>.ran" with its arguments and its parent's process id, so a test sees that it
// ran, how it was called and that nobody waited for it.
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>

#ifndef _WIN32
#include <unistd.h>
#endif

int main(int argc, char* argv[]) {
    if (argc < 2)
        return 2;
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));

    const std::string marker = std::string(argv[argc - 1]) + ".ran";
    {
        std::ofstream out(marker + ".part", std::ios::binary);
        for (int i = 1; i < argc; ++i)
            out << argv[i] << '\n';
#ifndef _WIN32
        out << "parent " << getppid() << '\n';
#endif
        if (!out)
            return 1;
    }
    // Appears whole or not at all.
    return std::rename((marker + ".part").c_str(), marker.c_str()) == 0 ? 0 : 1;
}
