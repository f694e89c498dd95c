#include "window/storeListener.h"

#include "store/storeBase.h"
#include "store/storeFiles.h"
#include "store/storeSync.h"

#include <QSqlDatabase>
#include <QSqlDriver>

namespace {

constexpr int forgottenSeconds = 600;
constexpr int againSeconds = 120;

// A KTM may hold blanks; no document's id does.
QString placeOf(const QString &document, const QString &key)
{
    return document + QLatin1Char(' ') + key;
}

} // namespace

storeListener &storeListener::instance()
{
    static storeListener only;
    return only;
}

void storeListener::listen(std::unique_ptr<store::connection> with)
{
    m_with = std::move(with);
    if (!isListening() || !m_with->isServer())
        return;
    QSqlDriver *driver = m_with->database().driver();
    if (!driver->subscribeToNotification(QStringLiteral("kivzp")))
        return;
    connect(driver,
            qOverload<const QString &, QSqlDriver::NotificationSource, const QVariant &>(
                &QSqlDriver::notification),
            this, [this](const QString &, QSqlDriver::NotificationSource, const QVariant &payload) {
                take(payload.toString());
            });
}

void storeListener::take(const QString &payload)
{
    const QStringList parts = payload.split(QLatin1Char('\t'));
    constexpr int ofEditing = 5;
    if (payload.startsWith(QLatin1String("changed ")))
        emit changed(payload.section(QLatin1Char(' '), 1, 1));
    else if (parts.size() == ofEditing && parts[0] == QLatin1String("editing")
             && !m_told.contains(placeOf(parts[1], parts[4]) + parts[2])) {
        m_editors.insert(placeOf(parts[1], parts[4]), {parts[3], QDateTime::currentDateTime()});
        emit edited(parts[1], parts[4]);
    }
}

int storeListener::changesOf(const store::base &known)
{
    return isListening() ? store::changesSince(*m_with, known) : 0;
}

void storeListener::tellEditing(const QString &document, const QString &program, const QString &key)
{
    if (!isListening() || !m_with->isServer() || key.isEmpty())
        return;
    const QDateTime now = QDateTime::currentDateTime();
    QDateTime &told = m_told[placeOf(document, key) + program];
    if (told.isValid() && told.secsTo(now) < againSeconds)
        return;
    told = now;
    m_with->askOne(
        QStringLiteral("select pg_notify('kivzp', ?)"),
        {QStringList{QStringLiteral("editing"), document, program, store::authorName(), key}.join(
            QLatin1Char('\t'))});
}

QString storeListener::editorOf(const QString &document, const QString &key) const
{
    const editing found = m_editors.value(placeOf(document, key));
    return found.at.isValid() && found.at.secsTo(QDateTime::currentDateTime()) < forgottenSeconds
               ? found.who
               : QString();
}
