#include "util/translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace translation {

namespace {
QString installed;
}

const QStringList &languages()
{
    static const QStringList known{QStringLiteral("pl"), QStringLiteral("en")};
    return known;
}

bool install(const QString &language)
{
    static QTranslator program;
    static QTranslator library;
    installed = language;
    QCoreApplication::removeTranslator(&program);
    QCoreApplication::removeTranslator(&library);
    // The texts of Qt's own dialogs, where its catalogues are installed.
    if (library.load(QLatin1String("qtbase_") + language,
                     QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&library);
    if (!program.load(QLatin1String(":/file/KIV_ZP_") + language + QLatin1String(".qm")))
        return false;
    return QCoreApplication::installTranslator(&program);
}

QString current() { return installed.isEmpty() ? ofEnvironment() : installed; }

QString ofEnvironment()
{
    const QString language = QLocale::system().name().left(2);
    return languages().contains(language) ? language : QStringLiteral("en");
}

} // namespace translation
