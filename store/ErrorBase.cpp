#include "store/ErrorBase.h"

namespace store {

bool esBloqueo(const QSqlError& e) {
    // SQLITE_BUSY (5) and SQLITE_LOCKED (6), and their text where a driver gives no code.
    const QString codigo = e.nativeErrorCode().trimmed();
    if (codigo == QLatin1String("5") || codigo == QLatin1String("6")) return true;
    const QString texto = e.databaseText();
    return texto.contains(QLatin1String("database is locked"), Qt::CaseInsensitive) ||
           texto.contains(QLatin1String("database table is locked"), Qt::CaseInsensitive);
}

Fallo falloDeBase(const QSqlError& e) {
    if (esBloqueo(e))
        return Fallo(FalloBaseOcupada,
                     QStringLiteral("La base de datos está ocupada: otra estación de trabajo u otra pantalla "
                                    "tiene estos datos en uso. Espere un momento y vuelva a intentarlo."));
    return Fallo(FalloGeneral, textoError(e));
}

} // namespace store
