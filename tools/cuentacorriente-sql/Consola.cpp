#include "Consola.h"

#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"
#include "store/sql/Parser.h"

namespace {

using namespace store;

void imprimirFilas(Recordset& rs, QTextStream& salida) {
    salida << rs.nombresCampos().join(QLatin1Char('\t')) << '\n';
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList celdas;
        for (int i = 0; i < rs.FieldCount(); ++i)
            celdas << runtime::TextoDe(rs.Fields(i).Value());
        salida << celdas.join(QLatin1Char('\t')) << '\n';
    }
}

void ejecutarUna(Conexion& cn, const QString& sentencia, QTextStream& salida) {
    if (sql::analizar(sentencia).tipo == sql::Sentencia::Tipo::Select) {
        Recordset rs;
        rs.Open(sentencia, cn, adOpenStatic, adLockReadOnly);
        imprimirFilas(rs, salida);
    } else {
        const long filas = cn.Execute(sentencia);
        salida << filas << (filas == 1 ? " fila afectada\n" : " filas afectadas\n");
    }
    salida.flush();
}

} // namespace

int ejecutarSentencias(const QStringList& sentencias, QTextStream& salida, QTextStream& errores) {
    try {
        Conexion cn(QStringLiteral("DSN=DSNBrenal"));
        cn.Open();
        for (const QString& s : sentencias)
            ejecutarUna(cn, s, salida);
        return 0;
    } catch (const Fallo& f) {
        salida.flush();
        errores << "Error " << f.numeroHex() << ": " << f.descripcion() << '\n';
        errores.flush();
        return 1;
    }
}

int ejecutarEntrada(QTextStream& entrada, QTextStream& salida, QTextStream& errores) {
    QStringList sentencias;
    while (!entrada.atEnd()) {
        const QString linea = entrada.readLine();
        if (!linea.trimmed().isEmpty()) sentencias << linea;
    }
    return ejecutarSentencias(sentencias, salida, errores);
}
