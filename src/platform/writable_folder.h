// Whether a folder takes new files. A folder whose own permission bits deny its owner writing
// counts as read-only even for an administrator, who could write there anyway: like a file
// marked read-only, it is one the user protects.
#pragma once

#include <QString>

namespace umbrakit {

// The folder's own mark; false for a folder that does not exist. Always false on Windows,
// where a folder's read-only attribute marks a customised folder, not a protected one.
bool folderIsMarkedReadOnly(const QString& folder);

// True when the program can create its files (config.ini, go.bat, lmList.dat) in the folder:
// not marked read-only, and the system lets this user write there (not read-only media,
// not a system folder).
bool programFolderIsWritable(const QString& folder);

} // namespace umbrakit
