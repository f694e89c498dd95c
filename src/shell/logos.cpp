#include "shell/logos.h"

namespace {

struct season
{
    int year; // 0: any
    int firstMonth;
    int firstDay;
    int lastMonth;
    int lastDay;
    const char *picture;

    bool holds(const QDate &day) const
    {
        const auto ordinal = [](int month, int dayOfMonth) { return month * 100 + dayOfMonth; };
        const int today = ordinal(day.month(), day.day());
        return (year == 0 || year == day.year()) && today >= ordinal(firstMonth, firstDay)
               && today <= ordinal(lastMonth, lastDay);
    }
};

// The first that holds counts. The two tables differ on purpose: the logo knows no vacation.
constexpr season splashSeasons[] = {
    {0, 12, 1, 12, 31, "startup_christmas_logo_256"},
    {2017, 4, 1, 4, 24, "startup_christmas_3_logo_256"},
    {2017, 4, 25, 4, 30, "startup_vacation_2_logo_256"},
    {2018, 3, 26, 3, 31, "startup_christmas_3_logo_256"},
    {2018, 3, 1, 3, 25, "startup_logo_256"},
    {2018, 4, 1, 4, 6, "startup_christmas_3_logo_256"},
    {2018, 4, 7, 4, 24, "startup_logo_256"},
    {2018, 4, 25, 4, 30, "startup_vacation_2_logo_256"},
    {0, 7, 1, 8, 31, "startup_vacation_logo_256"},
    {0, 9, 1, 9, 30, "startup_back_to_school_logo_256"},
};
constexpr season logoSeasons[] = {
    {0, 12, 1, 12, 31, "logo_kiv_zp_christmas_128"},
    {2017, 4, 1, 4, 24, "logo_kiv_zp_christmas3_128"},
    {2018, 3, 26, 4, 6, "logo_kiv_zp_christmas3_128"},
};

template <size_t Count>
QString pathOf(const season (&seasons)[Count], const QDate &day, const char *otherwise)
{
    const char *picture = otherwise;
    for (const season &s : seasons) {
        if (s.holds(day)) {
            picture = s.picture;
            break;
        }
    }
    return QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(picture));
}

} // namespace

namespace logos {

QString splashPath(const QDate &day) { return pathOf(splashSeasons, day, "startup_logo_256"); }

QString logoPath(const QDate &day) { return pathOf(logoSeasons, day, "logo_kiv_zp_128"); }

QPixmap splash() { return QPixmap(splashPath(QDate::currentDate())); }

QPixmap logo() { return QPixmap(logoPath(QDate::currentDate())); }

} // namespace logos
