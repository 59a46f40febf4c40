// Assistive technology sees a ClassicFrame as a group named by its caption, holding its
// controls. Qt would show a plain QFrame with a border role that screen readers on Linux take
// for a window.
#pragma once

namespace umbrakit {

// Once is enough; ClassicFrame does it when the first frame is made.
void exposeClassicFramesAsGroups();

} // namespace umbrakit
