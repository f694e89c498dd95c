// Downloads a file.
#pragma once

#include "tools/childRunner.h"

class curl_download : public childRunner
{
    Q_OBJECT
public:
    explicit curl_download(QObject *parent = nullptr);

    // Writes what the address gives to the target file. A download that broke off may leave a part
    // of it there. Refused without an address or a target.
    void start(const QString &address, const QString &target);

    // Once it is done: whether the target does not hold what was asked for, and whether that is
    // because nobody knows the host.
    bool failed() const { return result() != 0 || m_hostUnknown; }
    bool hostUnknown() const { return m_hostUnknown; }

    static QString command(const QString &address, const QString &target);

signals:
    void updateProgress(const QString &text);

protected:
    void log(const QString &text) override;
    void conclude(int result) override;

private:
    QString m_tail; // of the output, as much as may begin what is looked for
    bool m_hostUnknown = false;
};
