// An XML file as it is read: it tells how much of it has been read, and fails before a parser would
// spend its time on it for ever.
#pragma once

#include "util/progress.h"

#include <QFile>

class progressFile : public QFile
{
    Q_OBJECT
public:
    // progress may be empty. It is called about every megabyte; false makes reading fail.
    progressFile(const QString &path, progressFunction progress);

    bool cancelled() const { return m_cancelled; }
    // Reading failed because a tag has more attributes than any of a data file: the time that
    // parsers need grows with the square of their number.
    bool tooManyAttributes() const { return m_equalSigns > mostAttributes; }
    bool atEnd() const override { return m_cancelled || tooManyAttributes() || QFile::atEnd(); }

protected:
    qint64 readData(char *data, qint64 length) override;

private:
    static constexpr qint64 mostAttributes = 5000;

    void watchTags(const char *data, qint64 length);

    progressFunction m_progress;
    qint64 m_read = 0;
    qint64 m_told = 0;
    bool m_cancelled = false;
    bool m_inTag = false;    // a tag has begun and not ended in what was read
    qint64 m_equalSigns = 0; // in that tag
};
