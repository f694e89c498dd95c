// The undo history and the actions that are put off.
#include "testSupport.h"

#include "commands/commandStack.h"
#include "commands/commandSys.h"

#include <QAction>
#include <QPointer>

using namespace testSupport;

namespace {

// Notes what happens to it in a shared text.
class noted : public command
{
public:
    noted(QString *log, char name)
        : m_log(log)
        , m_name(name)
    {
        noted::redo();
    }
    ~noted() override { *m_log += QString("~%1").arg(m_name); }
    void undo() override { *m_log += QString("-%1").arg(m_name); }
    void redo() override { *m_log += QString("+%1").arg(m_name); }

private:
    QString *m_log;
    char m_name;
};

} // namespace

class tst_commandStack : public QObject
{
    Q_OBJECT
private slots:
    // p: push a new command (a, b, ...), n: push null, u: undo, r: redo, c: clear.
    void steps_data()
    {
        const rows<QString, QString, QString> row;
        row("empty", "ur", "", "--");
        row("push", "p", "+a", "u-");
        row("undo", "pu", "+a-a", "-r");
        row("undo keeps redo for later", "pur", "+a-a+a", "u-");
        row("push discards what was undone", "ppuup", "+a+b-b-a+c~a~b", "u-");
        row("redo the first of two", "ppuur", "+a+b-b-a+a", "ur");
        row("clear deletes each once", "pppuc", "+a+b+c-c~b~a~c", "--");
        row("a null command takes its step", "nupu", "+a-a", "-r");
    }

    void steps()
    {
        const auto [gestures, logged, actions] = fetch<QString, QString, QString>();
        QAction undo;
        QAction redo;
        QString log;
        char name = 'a';
        commandStack stack(&undo, &redo);
        for (QChar gesture : qAsConst(gestures))
            switch (gesture.toLatin1()) {
            case 'p':
                stack.push(std::make_unique<noted>(&log, name++));
                break;
            case 'n':
                stack.push(nullptr);
                break;
            case 'u':
                stack.undo();
                break;
            case 'r':
                stack.redo();
                break;
            default:
                stack.clear();
            }
        QCOMPARE(log, logged);
        QCOMPARE(QString(undo.isEnabled() ? "u" : "-") + (redo.isEnabled() ? "r" : "-"), actions);
    }

    void pendingActions()
    {
        pendingSysCommands::executeAll();
        const QTemporaryDir folder;
        const QString file = folder.filePath("file");
        const QString kept = folder.filePath("kept");
        const QString tree = folder.filePath("tree");
        for (const QString &path : {file, kept, tree + "/below"}) {
            QDir().mkpath(QFileInfo(path).path());
            QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        }
        QPointer<QWidget> widget = new QWidget;
        pendingSysCommands &pending = pendingSysCommands::instance();
        pending.append(std::make_unique<cmdRemoveFile>(file));
        pending.append(std::make_unique<cmdRemoveFile>(folder.filePath("missing")));
        pending.append(std::make_unique<cmdRemoveFolder>(tree));
        pending.append(std::make_unique<cmdRemoveWidget>(widget));
        pendingSysCommands::executeAll();
        QVERIFY(!QFile::exists(file) && !QDir(tree).exists() && !widget);
        QCOMPARE(pendingSysCommands::instance().size(), size_t(0));

        pendingSysCommands::instance().append(std::make_unique<cmdRemoveFile>(kept));
        pendingSysCommands::destroy();
        pendingSysCommands::executeAll();
        QVERIFY(QFile::exists(kept));
    }
};

KIVZP_TEST(tst_commandStack)
#include "tst_commandStack.moc"
