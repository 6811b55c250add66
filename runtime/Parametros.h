#pragma once

// El arreglo de parámetros que se pasan las pantallas y los diálogos (la variable
// Parametros del programa): un arreglo de VB de una dimensión, con base 1.

#include <QList>
#include <QVariant>

namespace runtime {

class ArregloVariant {
public:
    ArregloVariant() = default;

    // ReDim: n elementos vacíos (1..n); n == 0 deja el arreglo sin elementos.
    void ReDim(int n);
    // ReDim Preserve: conserva los valores hasta n y agrega elementos vacíos.
    void ReDimPreserve(int n);

    int LBound() const { return 1; }
    int UBound() const { return int(elementos_.size()); }

    // Fuera de 1..UBound lanza std::out_of_range, como el error 9 de VB.
    QVariant& operator()(int i);
    const QVariant& operator()(int i) const;

    // Si el elemento i no dice nada: Empty, Null o texto "" (el 0 sí dice algo).
    // Un índice fuera del arreglo también está vacío: sin elementos, nada se eligió.
    bool Vacio(int i) const;

    QVariantList Lista() const { return elementos_; }

private:
    bool enRango(int i) const { return i >= 1 && i <= UBound(); }
    void exigirRango(int i) const;

    QVariantList elementos_;
};

} // namespace runtime
