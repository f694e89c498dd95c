// A small file that several windows, programs and kivzp-cli share: it is read again whenever it
// changed, and each change is made to what it holds at that moment.
#pragma once

#include "data/documentSaving.h"
#include "data/documentStruct.h"

#include <functional>
#include <memory>

class sharedFile
{
public:
    using maker = std::unique_ptr<documentStruct> (*)();
    sharedFile(maker make, QString path)
        : m_make(make)
        , m_path(std::move(path))
    {
    }

    const QString &path() const { return m_path; }
    // Why it cannot be read, as of the last look; empty when it can, or there is none.
    const QString &fault() const { return m_fault; }
    // How often it was read: what was made of its content is old when this is another number.
    int readings() const { return m_readings; }

protected:
    // What the file holds now; nothing where there is no file, and where it cannot be read.
    documentStruct &current();
    bool changeCurrent(const std::function<bool(documentStruct &)> &edit, configStruct &config,
                       QString *fault);

private:
    maker m_make;
    QString m_path;
    fileState m_state;
    std::unique_ptr<documentStruct> m_content;
    QString m_fault;
    bool m_read = false;
    int m_readings = 0;
};

template <class Record>
class sharedDocument : public sharedFile
{
public:
    explicit sharedDocument(QString path = {})
        : sharedFile([]() -> std::unique_ptr<documentStruct> { return std::make_unique<Record>(); },
                     std::move(path))
    {
    }

    // What the file holds now; nothing where there is no file, and where fault() says why it cannot
    // be read.
    const Record &now() { return static_cast<Record &>(current()); }

    // Makes a change and writes the file, whose earlier version is kept. False, with the file as it
    // was and the reason in fault, when it cannot be read or written. What edit refuses by false is
    // not written, and no fault.
    bool change(const std::function<bool(Record &)> &edit, configStruct &config, QString *fault)
    {
        return changeCurrent(
            [&edit](documentStruct &content) { return edit(static_cast<Record &>(content)); },
            config, fault);
    }
};
