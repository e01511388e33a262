// Paths as the files keep them, and as this system's file calls want them.
//
// Stored paths come with either separator, often in capitals, often with a drive letter, since the
// entry fields force capitals and installations move between systems. They are kept as they are
// and turned into a native path at the moment of use:
//   - both separators are read;
//   - a drive letter X: is the folder `drives/x` in the current directory, which an administrator
//     makes a folder or a symbolic link to where the share is mounted;
//   - each part of the path is taken as it stands where such an entry exists, otherwise the first
//     entry in sorted order that differs in case alone.
#pragma once

#include <QString>

namespace storage {

// Absolute native path. Parts that do not exist are kept as they stand.
QString nativePath(const QString& storedPath);

// `folder` and `file` with one separator between: a backslash where the folder has one or is a bare
// drive, otherwise a slash. A blank folder gives the bare file name.
QString joinPath(const QString& folder, const QString& file);

bool endsInSeparator(const QString& path);

// True if the stored path names an existing file or folder. Any error counts as no.
bool pathExists(const QString& storedPath);

}  // namespace storage
