// Starts go.bat with the system's batch processor: cmd on Windows, Wine's elsewhere.
#pragma once

#include "platform/launcher.h"

namespace umbrakit {

class SystemLauncher : public Launcher {
public:
    LaunchResult startScript(const QString& scriptPath) override;
};

} // namespace umbrakit
