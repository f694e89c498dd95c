// The one place that knows where the program's files are. Everything that ships with the program
// lies beside it; tests point programDir() at a folder of their own.
#pragma once

#include <QString>

namespace paths {

// The folder of the program, without a trailing slash.
QString programDir();

// Points programDir() elsewhere; an empty text gives back the program's real folder.
void setProgramDir(const QString &dir);

// A path beside the program: programDir() + "/" + relative. An absolute path is returned as it is.
QString beside(const QString &relative);

// The path of a schema file in "_validator/". Only the file name of the argument counts, so that a
// document cannot name a schema elsewhere.
QString schema(const QString &fileName);

// The folder of what users change: "_config/", "_files/", "_zp/" and "_e-mail/". It is the
// program's own folder unless setDataDir() named another because that one cannot be written.
QString dataDir();
void setDataDir(const QString &dir); // empty: the program's folder again

// A path in that folder: dataDir() + "/" + relative. An absolute path is returned as it is.
QString data(const QString &relative);

// The folder of this user's own things, the same whatever folder the program works in.
QString userDir();

// "_config/kiv_mat_config.xml" there, and the small file beside it in which windows remember their
// places.
QString config();
QString windowState();

// The scratch folder of this run: a unique path in the system's temporary folder, chosen at the
// first call. Whoever writes there creates it by scratch::folder().
QString temporaryDir();

// The same without choosing one: empty until temporaryDir() was called.
QString temporaryDirIfSet();

} // namespace paths
