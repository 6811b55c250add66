#pragma once

// Dates as users in Guatemala write and read them (day/month/year), and the program's only
// clock, which tests can stop.

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QVariant>
#include <optional>

namespace runtime {

// "22/11/2026", "5-1-26", "05.01.2026" or ISO "2026-11-22". Days missing from the calendar
// (31/02, 29/02 in a non-leap year) are not dates.
std::optional<QDate> LeerFecha(const QString& texto);

bool EsFecha(const QString& texto);
bool EsFecha(const QVariant& valor); // a valid QDate/QDateTime, or text that is a date

QString TextoFecha(const QDate& fecha); // "dd/mm/yyyy"; "" for an invalid date

// The whole program asks for the date and time here, so tests can stop the clock.
QDate Hoy();
QDateTime Ahora();

// For tests: stop the clock at an instant, and hand it back to the system clock.
void FijarReloj(const QDateTime& instante);
void LiberarReloj();

// Keeps the clock stopped while it lives, so a failing test cannot leave it stopped.
class RelojFijo {
public:
    explicit RelojFijo(const QDateTime& instante);
    ~RelojFijo();
    RelojFijo(const RelojFijo&) = delete;
    RelojFijo& operator=(const RelojFijo&) = delete;
};

} // namespace runtime
