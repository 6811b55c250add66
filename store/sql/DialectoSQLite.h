#pragma once

#include "store/sql/Dialecto.h"

namespace store::sql {

// SQLite through its ODBC driver: dates are 'YYYY-MM-DD' text, booleans 1 and 0, text joined with ||.
class DialectoSQLite : public Dialecto {
public:
    QString nombre() const override { return QStringLiteral("SQLite"); }

    // One writer at a time: the shared transaction reads committed data until it first writes, and
    // only then takes the write lock, so that another connection may commit meanwhile.
    bool cerrojoAlEscribir() const override { return true; }
    QString inicioEscritura() const override { return QStringLiteral("BEGIN IMMEDIATE"); }

    bool esPalabraClave(const QString& nombre) const override;
    QString igualdadSegura(const QString& columnaCitada) const override;
    QString valorExacto(const QString& columnaCitada) const override;
    QVariant claveGenerada(QSqlDatabase& bd, const QString& tabla, const QString& clave) const override;

    QString concatenar(const std::vector<QString>& partes) const override;
    QString formatear(const QString& valor, const QString& patron) const override;
    QString literalFecha(const QDate& fecha) const override;
    QString literalLogico(bool valor) const override;
    QString parecido(const QString& valor, const QString& patron,
                     const QString* patronLiteral) const override;
    QString comoReal(const QString& valor) const override;
    QString comoTexto(const QString& valor) const override;
    QString derecha(const QString& texto, const QString& largo) const override;
    QString hoy() const override;
    QString ahora() const override;
};

} // namespace store::sql
