#pragma once

// Fechas como las escribe y las lee el usuario en Guatemala (día/mes/año), y el
// único reloj del programa, que las pruebas pueden detener.

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QVariant>
#include <optional>

namespace runtime {

// "22/11/2026", "5-1-26", "05.01.2026" o ISO "2026-11-22". Lo que no es una fecha
// del calendario (31/02, 29/02 de un año no bisiesto) no es una fecha.
std::optional<QDate> LeerFecha(const QString& texto);

bool EsFecha(const QString& texto);
bool EsFecha(const QVariant& valor); // QDate/QDateTime válidos, o texto que es fecha

QString TextoFecha(const QDate& fecha); // "dd/mm/yyyy"; "" si la fecha no es válida

// El reloj: todo el programa pregunta la fecha y la hora aquí.
QDate Hoy();
QDateTime Ahora();

// Detiene el reloj en un instante (para pruebas) y lo devuelve al del sistema.
void FijarReloj(const QDateTime& instante);
void LiberarReloj();

// Detiene el reloj mientras vive el objeto.
class RelojFijo {
public:
    explicit RelojFijo(const QDateTime& instante);
    ~RelojFijo();
    RelojFijo(const RelojFijo&) = delete;
    RelojFijo& operator=(const RelojFijo&) = delete;
};

} // namespace runtime
