// libFuzzer target: the translator on any text. A statement the translator refuses is fine; one it
// translates must pass every check of a safe translation, and SQLite must read it as one statement
// with nothing left over. Anything else (and every crash, sanitizer report, hang or runaway memory,
// which libFuzzer catches itself) ends the run with the input saved.
#include "EsquemaEnMemoria.h"
#include "PropiedadDeTraduccion.h"
#include "store/Fallo.h"
#include "store/sql/DialectoSQLite.h"
#include "store/sql/Parser.h"

#include <cstdio>
#include <cstdlib>

namespace {

struct Entorno {
    EsquemaEnMemoria esquema{QStringLiteral(CC_SCHEMA_DIR)};
    store::sql::DialectoSQLite dialecto;
    Traductor traducir = [this](const QString& s) {
        return dialecto.traducir(store::sql::analizar(s), &esquema);
    };
};

[[noreturn]] void defecto(const QString& que, const QString& sentencia, const QString& traduccion) {
    std::fprintf(stderr, "\n== defecto de traducción: %s\n== instrucción: %s\n== traducción: %s\n",
                 qPrintable(que), qPrintable(sentencia.left(2000)), qPrintable(traduccion.left(2000)));
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    static Entorno e;
    const QString sentencia = QString::fromUtf8(reinterpret_cast<const char*>(datos), qsizetype(largo));
    QString traduccion;
    try {
        traduccion = e.traducir(sentencia);
    } catch (const store::Fallo&) {
        return 0;
    }
    if (const QString d = defectoDeTraduccion(sentencia, traduccion, e.traducir); !d.isEmpty())
        defecto(d, sentencia, traduccion);
    const auto p = e.esquema.preparar(traduccion);
    if (p.preparada && !p.resto.trimmed().isEmpty())
        defecto(QStringLiteral("SQLite dejó sin leer: ") + p.resto, sentencia, traduccion);
    return 0;
}
