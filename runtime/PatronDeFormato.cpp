#include "runtime/PatronDeFormato.h"

namespace runtime::detalle {

QList<CaracterDePatron> caracteresDelPatron(const QString& patron) {
    QList<CaracterDePatron> caracteres;
    bool entreComillas = false;
    for (qsizetype i = 0; i < patron.size(); ++i) {
        const QChar c = patron[i];
        if (c == u'"') {
            entreComillas = !entreComillas;
        } else if (entreComillas) {
            caracteres.append({c, true});
        } else if (c == u'\\' && i + 1 < patron.size()) {
            caracteres.append({patron[++i], true});
        } else {
            caracteres.append({c, false});
        }
    }
    return caracteres;
}

} // namespace runtime::detalle
