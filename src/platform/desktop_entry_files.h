// The user's menu entry for the program: the desktop file and the icons, in the places where
// the freedesktop menus and icon themes look for them below the user's data folder.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>

namespace umbrakit {

class FileOps;

// $XDG_DATA_HOME, or ~/.local/share when it is unset or not an absolute path.
QString userDataFolder();

struct DesktopEntryContent {
    QByteArray entryText;
    std::map<int, QByteArray> iconPngs; // by size in pixels
};

struct DesktopEntryChange {
    QStringList paths;  // the files written or removed, in order
    QString failedPath; // empty when every file was done
    QString reason;
};

// Writes applications/umbrakit.desktop and icons/hicolor/<size>x<size>/apps/umbrakit.png,
// each whole (an older one stays intact until its replacement is complete). Stops at the first
// file that fails.
DesktopEntryChange installDesktopEntry(FileOps& files, const QString& dataFolder,
                                       const DesktopEntryContent& content);

// Removes exactly the files that installDesktopEntry writes, where they exist; folders stay.
DesktopEntryChange removeDesktopEntry(FileOps& files, const QString& dataFolder);

} // namespace umbrakit
