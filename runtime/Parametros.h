#pragma once

// The parameters the screens and dialogs pass each other (the program's Parametros variable):
// a one-dimensional VB array based at 1.

#include <QList>
#include <QVariant>

namespace runtime {

class ArregloVariant {
public:
    ArregloVariant() = default;

    // ReDim: n empty elements (1..n); 0 leaves none.
    void ReDim(int n);
    // ReDim Preserve: keeps the values up to n and adds empty elements.
    void ReDimPreserve(int n);

    int LBound() const { return 1; }
    int UBound() const { return int(elementos_.size()); }

    // Outside 1..UBound throws std::out_of_range, like VB's error 9.
    QVariant& operator()(int i);
    const QVariant& operator()(int i) const;

    // Whether element i says nothing: Empty, Null or "" (0 does say something). An index outside
    // the array is empty too: with no elements, nothing was chosen.
    bool Vacio(int i) const;

    QVariantList Lista() const { return elementos_; }

private:
    bool enRango(int i) const { return i >= 1 && i <= UBound(); }
    void exigirRango(int i) const;

    QVariantList elementos_;
};

} // namespace runtime
