// A launcher that starts nothing and records what it was asked to start.
#pragma once

#include <QStringList>

#include "platform/launcher.h"

namespace umbrakit {

class FakeLauncher : public Launcher {
  public:
    LaunchResult answer; // what every start reports
    QStringList started; // the scripts asked for, in order

    LaunchResult startScript(const QString& scriptPath) override {
        started << scriptPath;
        return answer;
    }
};

} // namespace umbrakit
