// Starts go.bat detached: the program never waits for the script and keeps no handle to it.
#pragma once

#include <QString>

namespace umbrakit {

struct LaunchResult {
    enum Outcome { Started, NoBatchProcessor, Failed };
    Outcome outcome = Started;
    QString reason; // for Failed: the system's reason
};

class Launcher {
public:
    virtual ~Launcher() = default;
    virtual LaunchResult startScript(const QString& scriptPath) = 0;
};

} // namespace umbrakit
