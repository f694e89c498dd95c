#include "util/localeSetup.h"
#include "util/translation.h"

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
    const application app(argc, argv);
    translation::install(QStringLiteral("en"));
    return testSupport::run(argc, argv);
}
