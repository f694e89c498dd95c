#include "util/userName.h"

#include <QDir>
#include <QFileInfo>

QString userName()
{
    // Which of them is set depends on the system and on what started the program.
    for (const char *variable : {"USER", "LOGNAME", "USERNAME"})
        if (const QString name = qEnvironmentVariable(variable); !name.isEmpty())
            return name;
    return QFileInfo(QDir::homePath()).fileName();
}
