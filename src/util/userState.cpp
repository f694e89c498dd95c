#include "util/userState.h"

#include <QSettings>

namespace {

const QString lastZpKey = QStringLiteral("lastZp");
const QString altiumDirKey = QStringLiteral("altiumDir");

} // namespace

userState &userState::instance()
{
    static userState state;
    return state;
}

void userState::load()
{
    const QSettings settings;
    lastZp = settings.value(lastZpKey, QStringLiteral("_zp/zp_0.xml")).toString();
    altiumDir = settings.value(altiumDirKey).toString();
}

QString userState::unwritableStore()
{
    QSettings settings;
    settings.sync();
    return settings.isWritable() ? QString() : settings.fileName();
}

void userState::save() const
{
    QSettings settings;
    settings.setValue(lastZpKey, lastZp);
    settings.setValue(altiumDirKey, altiumDir);
}
