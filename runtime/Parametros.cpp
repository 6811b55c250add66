#include "runtime/Parametros.h"

#include "runtime/Conversion.h"

#include <stdexcept>

namespace runtime {

namespace {

// VB's error 9 message, the one the screens' maintainers know.
constexpr const char* kSubindiceFueraDelIntervalo = "Subíndice fuera del intervalo";

void exigirTamanioValido(int n) {
    if (n < 0) throw std::out_of_range(kSubindiceFueraDelIntervalo);
}

} // namespace

void ArregloVariant::ReDim(int n) {
    exigirTamanioValido(n);
    elementos_ = QVariantList(n);
}

void ArregloVariant::ReDimPreserve(int n) {
    exigirTamanioValido(n);
    elementos_.resize(n);
}

void ArregloVariant::exigirRango(int i) const {
    if (!enRango(i)) throw std::out_of_range(kSubindiceFueraDelIntervalo);
}

QVariant& ArregloVariant::operator()(int i) {
    exigirRango(i);
    return elementos_[i - 1];
}

const QVariant& ArregloVariant::operator()(int i) const {
    exigirRango(i);
    return elementos_.at(i - 1);
}

bool ArregloVariant::Vacio(int i) const {
    return !enRango(i) || TextoDe(elementos_.at(i - 1)).isEmpty();
}

} // namespace runtime
