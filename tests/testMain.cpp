#include "util/localeSetup.h"
#include "util/translation.h"

#include <QFile>
#include <QTemporaryDir>

#ifdef KIVZP_GUI_TESTS
#include <QApplication>
using application = QApplication;
#else
#include <QGuiApplication>
using application = QGuiApplication;
#endif

namespace testSupport {
int run(int argc, char **argv);
}

int main(int argc, char **argv)
{
    ensureUtf8Locale();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Versions and intermediate files that tests keep are not the user's.
    static const QTemporaryDir temporary; // outlives what the program removes last
    // Programs are started there as another user, too.
    QFile::setPermissions(temporary.path(), QFile::permissions(temporary.path()) | QFile::ReadGroup | QFile::ExeGroup
                                                | QFile::ReadOther | QFile::ExeOther);
    qputenv("TMPDIR", temporary.path().toUtf8());
    qputenv("XDG_DATA_HOME", temporary.filePath(QStringLiteral("data")).toUtf8());
    const application app(argc, argv);
    translation::install(QStringLiteral("en"));
    return testSupport::run(argc, argv);
}
