// The program's clock, declared in Fechas.h. The program has one thread, so a static is enough.

#include "runtime/Fechas.h"

namespace runtime {

namespace {

std::optional<QDateTime>& relojDetenido() {
    static std::optional<QDateTime> instante;
    return instante;
}

} // namespace

QDateTime Ahora() {
    const std::optional<QDateTime>& detenido = relojDetenido();
    return detenido ? *detenido : QDateTime::currentDateTime();
}

QDate Hoy() {
    return Ahora().date();
}

void FijarReloj(const QDateTime& instante) {
    relojDetenido() = instante;
}

void LiberarReloj() {
    relojDetenido().reset();
}

RelojFijo::RelojFijo(const QDateTime& instante) {
    FijarReloj(instante);
}

RelojFijo::~RelojFijo() {
    LiberarReloj();
}

} // namespace runtime
