#pragma once

#include <QString>
#include <QtGlobal>
#include <exception>

namespace store {

// A failed call on the data store: the number the program may test and the text the driver gave.
// Numbers are the 32-bit values a caller compares with, e.g. FalloGeneral for anything the
// database itself refused (a broken relation, a constraint, a syntax error it found).
class Fallo : public std::exception {
public:
    Fallo(qint32 numero, QString descripcion);

    qint32 numero() const { return numero_; }
    const QString& descripcion() const { return descripcion_; }
    // "80004005": the number as eight hexadecimal digits, as administrators quote it.
    QString numeroHex() const;
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    qint32 numero_;
    QString descripcion_;
    QByteArray utf8_;
};

constexpr qint32 numeroFallo(quint32 hresult) {
    return static_cast<qint32>(hresult);
}

// What the database refused, whatever the reason (E_FAIL as ODBC reports it).
inline constexpr qint32 FalloGeneral = numeroFallo(0x80004005u);
// A statement the translator refused before the database saw it.
inline constexpr qint32 FalloSintaxis = numeroFallo(0x80040E14u);
// A field read or written while there is no current row.
inline constexpr qint32 FalloSinRegistroActual = numeroFallo(0x800A0BCDu);
// A field name that the recordset does not have.
inline constexpr qint32 FalloCampoInexistente = numeroFallo(0x800A0CC1u);
// An operation on a closed connection or recordset.
inline constexpr qint32 FalloObjetoCerrado = numeroFallo(0x800A0E78u);
// A value that cannot be converted to the column's type.
inline constexpr qint32 FalloValorInvalido = numeroFallo(0x80040E21u);
// The row to update or delete is no longer as it was read.
inline constexpr qint32 FalloFilaCambiada = numeroFallo(0x80040E38u);
// An operation the recordset or connection does not allow in its state.
inline constexpr qint32 FalloOperacionNoPermitida = numeroFallo(0x800A0CB3u);
// The database is busy: another connection holds its write lock (on SQLite, a transaction of the
// shared connection that has already written, or another program or workstation). Nothing was
// written; the same step may be tried again.
inline constexpr qint32 FalloBaseOcupada = numeroFallo(0x80040E31u);
// The data source could not be opened.
inline constexpr qint32 FalloConexion = numeroFallo(0x80004005u);

} // namespace store
