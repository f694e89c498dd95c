// What the tests share: the list of test classes, a program folder of their own, prompts that record
// instead of showing, and rows of one line. Precompiled, with what most tests include.
#pragma once

#include "data/configStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "database/databaseSupport.h"
#include "util/files.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

// Puts a test class in the list of the executable: KIVZP_TEST(tst_text) at the end of its file.
// NOLINTBEGIN(bugprone-macro-parentheses): a class name takes none
#define KIVZP_TEST(Class) static const bool registered_##Class = testSupport::add(#Class, [] { return new Class; });
// NOLINTEND(bugprone-macro-parentheses)

namespace testSupport {

bool add(const char *name, const std::function<QObject *()> &create);

// A program folder with copies of the schemas, in use while it lives.
class programFolder
{
public:
    programFolder();
    ~programFolder();

    QString path(const QString &relative = {}) const;
    // Writes bytes to a file in the folder and returns its path.
    QString write(const QString &relative, const QByteArray &content) const;
    // The same for a shell script that can be run.
    QString script(const QString &relative, const QByteArray &body) const;
    // Copies folders of the source tree into this one.
    void ship(const QStringList &folders) const;

private:
    QTemporaryDir m_dir;
};

// In use while it lives; who asks gets no file and no value.
class recordingPrompts : public prompts
{
public:
    recordingPrompts() = default;
    ~recordingPrompts() override { installPrompts(m_before); }

    void showError(const QString &html) override;
    void showInformation(const QString &) override {}
    void showWarning(const QString &) override {}
    answer ask(const QString &html, bool) override
    {
        asked = html;
        return answered;
    }
    QString openFile(const QString &, const QString &, const QString &) override { return {}; }
    QString saveFile(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<int> decide(const QString &, const QStringList &, bool) override { return {}; }
    std::optional<QString> inputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<int> inputNumber(const QString &, const QString &, int, int, int) override { return {}; }
    std::optional<QDate> inputDate(const QString &, const QDate &) override { return {}; }
    std::optional<int> choose(const QString &, const QString &, const QStringList &, int) override { return {}; }
    void log(const QString &html) override { logged += html; }
    void listError(const QString &html) override { listed += html; }

    // What was shown, as plain text.
    QStringList errors;
    // The last question, and the answer to all of them.
    QString asked;
    answer answered = answer::no;
    // What went to the log and errors windows, as HTML.
    QString logged;
    QString listed;

private:
    prompts *m_before = installPrompts(this);
};

// Answers each request with the reply for its path, if any.
class webServer : public QTcpServer
{
public:
    explicit webServer(const std::function<QByteArray(const QByteArray &path)> &replyFor);
    QByteArray request; // the last one
};

// A test class whose slots each begin with a folder and prompts of their own.
class folderTest : public QObject
{
    Q_OBJECT
protected slots:
    virtual void init();
    virtual void cleanup();

protected:
    std::unique_ptr<programFolder> m_folder;
    std::unique_ptr<recordingPrompts> m_shown;
};

// QtTest keeps the pointers.
constexpr const char *columnNames[] = {"0", "1", "2", "3", "4", "5", "6"};

// The rows of a test, made in its "_data" slot: rows<QString, int> row; row("tag", "text", 1);
template <class... Values>
class rows
{
public:
    rows()
    {
        int column = 0;
        (QTest::addColumn<Values>(columnNames[column++]), ...);
    }
    void operator()(const char *tag, const Values &...values) const { (QTest::newRow(tag) << ... << values); }
    // Rows that differ in their tags alone, which are what is tested.
    void each(const std::initializer_list<const char *> &tags, const Values &...values) const
    {
        for (const char *tag : tags)
            (*this)(tag, values...);
    }
};

// The present row, read back: const auto [text, number] = fetch<QString, int>();
template <class... Values>
std::tuple<Values...> fetch()
{
    int column = 0;
    // Braces keep the order.
    return std::tuple<Values...>{*static_cast<Values *>(QTest::qData(columnNames[column++], qMetaTypeId<Values>()))...};
}

// The present row's tag as a text.
inline QString tag() { return QString::fromUtf8(QTest::currentDataTag()); }

// How a process ended and what it wrote.
struct ended
{
    int code = -1; // also when it crashed or did not end within a minute
    QString out;
    QString err;
};
// Runs a program to its end. In the environment "NAME=value" sets and "NAME" removes a variable.
ended run(const QString &program, const QStringList &arguments, const QStringList &environment = {},
          const QString &folder = {}, const QString &input = {});

QByteArray read(const QString &path);
void write(const QString &path, const QByteArray &content);
// NOLINTBEGIN(bugprone-macro-parentheses): a class name takes none
// The files below folders of the source tree; a test fails that finds none in one of them.
QStringList sources(const QStringList &folders, const QStringList &patterns);
// NOLINTEND(bugprone-macro-parentheses)

// Copies a folder with all its files.
void copyFolder(const QString &from, const QString &to);

// A file of the project's source tree.
QString source(const QString &relative);

// The root element's start tag of a file kind: root, xsi:type and schema as the program writes
// them.
QByteArray document(const char *root, const char *type, const char *schema, const QByteArray &content);
QByteArray database(const QByteArray &content);
QByteArray bom(const QByteArray &content);
// An order with that content.
QByteArray order(const QByteArray &content);

} // namespace testSupport
