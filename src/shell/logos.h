// The program's pictures, which change with the date.
#pragma once

#include <QDate>
#include <QPixmap>
#include <QString>

namespace logos {

// Resource paths of the 256-pixel start-up picture and of the 128-pixel logo on a day.
QString splashPath(const QDate &day);
QString logoPath(const QDate &day);

// The pictures of today.
QPixmap splash();
QPixmap logo();

} // namespace logos
