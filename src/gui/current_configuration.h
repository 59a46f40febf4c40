// The current configuration as the paths dialog meets it: it reads it when it loads or shows
// "(Current)", and OK hands it a new one. The main window holds it.
#pragma once

#include "core/configuration.h"

namespace umbrakit {

class CurrentConfiguration {
  public:
    virtual const Configuration& configuration() const = 0;
    // What OK does: the texts and the darkness are taken over, and each pass is set the way
    // a change of its box's Value sets it.
    virtual void applyConfiguration(const Configuration& configuration) = 0;

  protected:
    ~CurrentConfiguration() = default;
};

} // namespace umbrakit
