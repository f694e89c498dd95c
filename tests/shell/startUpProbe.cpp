// The whole program as a process of its own, for tests and benchmarks of the start: prints what the
// user would see, and ends with exit code 7 as soon as the main window is shown.
#include "order/orderView.h"
#include "shell/MainWindow.h"
#include "shell/startUp.h"
#include "util/paths.h"
#include "util/text.h"
#include "window/messageWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWebFrame>
#include <QWebView>

#include <csignal>
#include <cstdio>

namespace {

void print(const char *what, const QString &text)
{
    std::printf("%s: %s\n", what, qUtf8Printable(QString(text).replace('\n', " | ")));
}

void tell(MainWindow &window)
{
    print("title", window.windowTitle());
    print("visible", window.isVisible() ? "yes" : "no");
    std::fflush(stdout);
    print("data", paths::dataDir());
    print("temporary", paths::temporaryDir());
    print("log", text::htmlToPlain(logWindow::instance().text()));
    print("errors", text::htmlToPlain(errorsWindow::instance().text()));
    print("errorsVisible", errorsWindow::instance().isVisible() ? "yes" : "no");
    print("page", window.findChild<QWebView *>("preview")->page()->mainFrame()->toPlainText());
    std::fflush(stdout);
    const QByteArray task = qgetenv("KIVZP_PROBE_TASK");
    if (task == "crash") {
        // A minute of work, and then the power fails.
        orderView &view = window.view();
        view.lines()->setValue(static_cast<myItem::myItemStandard *>(view.lines()->item(0, orderTree::nameColumn)),
                               QString("UNSAVED"));
        window.storeRecovery();
        std::raise(SIGKILL);
    } else if (task == "recover") {
        QTimer::singleShot(0, &window, [&window] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                print("question", box->text());
                for (QAbstractButton *button : box->buttons())
                    if (box->buttonRole(button) == QMessageBox::YesRole)
                        button->click();
            }
            QTimer::singleShot(0, &window, [&window] {
                print("firstName", window.view().lines()->item(0, 1)->text());
                std::fflush(stdout);
                QCoreApplication::exit(7);
            });
        });
    } else {
        QTimer::singleShot(0, [] { QCoreApplication::exit(7); });
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return runProgram(argc, argv, tell);
}
