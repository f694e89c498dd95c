// A file that tells how much of it has been read.
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

protected:
    qint64 readData(char *data, qint64 length) override;

private:
    progressFunction m_progress;
    qint64 m_read = 0;
    qint64 m_told = 0;
    bool m_cancelled = false;
};
