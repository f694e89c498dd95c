// Files packed as gzip, which any system opens ("zcat", 7-Zip).
#pragma once

#include "util/progress.h"

#include <QString>

namespace gzipFile {

// Packs a file into another one, which appears when it is whole. note: a text that is kept in it.
// progress is told the bytes read; false makes packing fail.
bool pack(const QString &from, const QString &to, const QString &note,
          const progressFunction &progress = {});

// Unpacks one into another file, which appears when it is whole and right. False also when it would
// be larger than the limit, in bytes.
bool unpack(const QString &from, const QString &to, qint64 limit);

// Whether a file is what was packed, told by size and check sum without unpacking. False when one
// cannot be read.
bool holds(const QString &packed, const QString &file);

// The note of a packed file; empty when there is none.
QString noteOf(const QString &packed);

} // namespace gzipFile
