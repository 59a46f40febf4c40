// Starts go.bat with the system's batch processor: cmd on Windows, Wine elsewhere.
#pragma once

#include <QStringList>
#include <optional>

#include "platform/launcher.h"

namespace umbrakit {

// The program that runs a script, and the arguments that come before the script's path.
struct BatchProcessor {
    QString program; // a name looked up on the search path, or a full path
    QStringList leadingArguments;
};

class SystemLauncher : public Launcher {
  public:
    // The system's own batch processor: cmd.exe on Windows, elsewhere Wine if it is installed.
    SystemLauncher();
    // Another program in its place, such as a stand-in that a test can watch.
    explicit SystemLauncher(BatchProcessor processor);

    LaunchResult startScript(const QString& scriptPath) override;

  private:
    std::optional<BatchProcessor> processor_; // none: the system's own
};

} // namespace umbrakit
