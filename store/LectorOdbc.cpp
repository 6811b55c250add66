#include "store/LectorOdbc.h"

#include "store/Fallo.h"

#include <QDate>
#include <QDateTime>
#include <QSqlResult>
#include <cmath>
#include <sql.h>
#include <sqlext.h>

namespace store {
namespace {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "unixODBC's wide characters are UTF-16");

QString diagnostico(SQLHSTMT h) {
    SQLWCHAR estado[6] = {}, texto[1024] = {};
    SQLINTEGER nativo = 0;
    SQLSMALLINT largo = 0;
    if (!SQL_SUCCEEDED(SQLGetDiagRecW(SQL_HANDLE_STMT, h, 1, estado, &nativo, texto, 1024, &largo)))
        return QStringLiteral("Error del controlador ODBC al leer el resultado.");
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(texto), std::min<int>(largo, 1023));
}

[[noreturn]] void fallar(SQLHSTMT h) {
    throw Fallo(FalloGeneral, diagnostico(h));
}

QMetaType::Type tipoDe(SQLSMALLINT tipoSql) {
    switch (tipoSql) {
    case SQL_BIGINT:
        return QMetaType::LongLong;
    case SQL_INTEGER:
    case SQL_SMALLINT:
    case SQL_TINYINT:
        return QMetaType::Int;
    case SQL_BIT:
        return QMetaType::Bool;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        return QMetaType::Double;
    case SQL_TYPE_DATE:
    case SQL_DATE:
        return QMetaType::QDate;
    case SQL_TYPE_TIMESTAMP:
    case SQL_TIMESTAMP:
        return QMetaType::QDateTime;
    case SQL_TYPE_TIME:
    case SQL_TIME:
        return QMetaType::QTime;
    default:
        return QMetaType::QString;
    }
}

// Reads one cell in its C type; false when it is Null.
template <typename T> bool leerFijo(SQLHSTMT h, SQLUSMALLINT columna, SQLSMALLINT tipoC, T& valor) {
    SQLLEN indicador = 0;
    const SQLRETURN r = SQLGetData(h, columna, tipoC, &valor, sizeof valor, &indicador);
    if (!SQL_SUCCEEDED(r)) fallar(h);
    return indicador != SQL_NULL_DATA;
}

// Text comes in pieces of the buffer's size until the driver has given it all.
QVariant leerTexto(SQLHSTMT h, SQLUSMALLINT columna) {
    constexpr SQLLEN caracteres = 512;
    SQLWCHAR buffer[caracteres];
    QString texto;
    while (true) {
        SQLLEN indicador = 0;
        const SQLRETURN r = SQLGetData(h, columna, SQL_C_WCHAR, buffer, sizeof buffer, &indicador);
        if (r == SQL_NO_DATA) break;
        if (!SQL_SUCCEEDED(r)) fallar(h);
        if (indicador == SQL_NULL_DATA) return QVariant();
        const bool truncado = indicador == SQL_NO_TOTAL || indicador >= static_cast<SQLLEN>(sizeof buffer);
        const qsizetype n = truncado ? caracteres - 1 : indicador / static_cast<SQLLEN>(sizeof(SQLWCHAR));
        texto.append(QStringView(reinterpret_cast<const char16_t*>(buffer), n));
        if (r == SQL_SUCCESS) break;
    }
    return texto;
}

QVariant leerCelda(SQLHSTMT h, SQLUSMALLINT columna, QMetaType::Type tipo) {
    switch (tipo) {
    case QMetaType::LongLong:
    case QMetaType::Int: {
        // Read as a double: the SQLite driver types a computed column from its first row, so an
        // "integer" column may hold 22.75 further down, which an integer read would cut to 22.
        SQLDOUBLE v = 0;
        if (!leerFijo(h, columna, SQL_C_DOUBLE, v)) return QVariant();
        if (v != std::trunc(v) || std::abs(v) > 9.0e15) return v;
        if (tipo == QMetaType::Int && std::abs(v) <= 2147483647.0) return static_cast<int>(v);
        return QVariant::fromValue<qlonglong>(static_cast<qlonglong>(v));
    }
    case QMetaType::Bool: {
        SQLINTEGER v = 0;
        return leerFijo(h, columna, SQL_C_SLONG, v) ? QVariant(v != 0) : QVariant();
    }
    case QMetaType::Double: {
        SQLDOUBLE v = 0;
        return leerFijo(h, columna, SQL_C_DOUBLE, v) ? QVariant(v) : QVariant();
    }
    case QMetaType::QDate: {
        SQL_DATE_STRUCT d{};
        return leerFijo(h, columna, SQL_C_TYPE_DATE, d) ? QVariant(QDate(d.year, d.month, d.day))
                                                        : QVariant();
    }
    case QMetaType::QDateTime: {
        SQL_TIMESTAMP_STRUCT t{};
        if (!leerFijo(h, columna, SQL_C_TYPE_TIMESTAMP, t)) return QVariant();
        return QDateTime(QDate(t.year, t.month, t.day), QTime(t.hour, t.minute, t.second));
    }
    case QMetaType::QTime: {
        SQL_TIME_STRUCT t{};
        return leerFijo(h, columna, SQL_C_TYPE_TIME, t) ? QVariant(QTime(t.hour, t.minute, t.second))
                                                        : QVariant();
    }
    default:
        return leerTexto(h, columna);
    }
}

} // namespace

ResultadoLeido leerResultado(QSqlQuery& consulta) {
    const QVariant manejador = consulta.result()->handle();
    if (!manejador.isValid() || manejador.data() == nullptr)
        throw Fallo(FalloGeneral, QStringLiteral("La consulta no tiene un resultado ODBC que leer."));
    SQLHSTMT h = *static_cast<SQLHANDLE const*>(manejador.data());

    ResultadoLeido r;
    SQLSMALLINT columnas = 0;
    if (!SQL_SUCCEEDED(SQLNumResultCols(h, &columnas))) fallar(h);
    for (SQLUSMALLINT i = 1; i <= columnas; ++i) {
        SQLWCHAR nombre[256] = {};
        SQLSMALLINT largo = 0, tipoSql = 0, decimales = 0, nulable = 0;
        SQLULEN tamano = 0;
        if (!SQL_SUCCEEDED(
                SQLDescribeColW(h, i, nombre, 256, &largo, &tipoSql, &tamano, &decimales, &nulable)))
            fallar(h);
        r.nombres << QString::fromUtf16(reinterpret_cast<const char16_t*>(nombre), std::min<int>(largo, 255));
        r.tipos << tipoDe(tipoSql);
    }
    while (true) {
        const SQLRETURN f = SQLFetch(h);
        if (f == SQL_NO_DATA) break;
        if (!SQL_SUCCEEDED(f)) fallar(h);
        QVector<QVariant> fila(columnas);
        for (SQLUSMALLINT i = 1; i <= columnas; ++i)
            fila[i - 1] = leerCelda(h, i, r.tipos[i - 1]);
        r.filas.push_back(std::move(fila));
    }
    return r;
}

} // namespace store
