#pragma once

// What the receipt's test programs share: the store's rows before each test, the screen opened from
// "Recibos" as the clerk opens it, and the clerk's gestures on it (the bar, a receipt found, a new
// receipt for an application, a concept picked from the pick list by Insert, the line dialog, the
// cash typed), made of the shared gestures of Gestos.h, on the frame of EnPantalla.h.
#include "EnPantalla.h"
#include "cash/frmRecibo.h"

#include <QDate>
#include <QString>
#include <QStringList>

// Today, for every test.
inline const QDate kHoy(2026, 3, 10);

// The screen's title, which its messages bear.
inline const QString kTitulo = QStringLiteral("Recibos");

// The rows every test starts from (the concepts are the schema's own: 1 Enganche, 2 Primer pago,
// 3 Cuota mensual, 4 Mora, then the ordinary ones, Flete among them):
//   clients      1 ANA LUCÍA GONZÁLEZ (G1), 2 PEDRO RAMÍREZ (R1)
//   article      1 REFRIGERADORA RT38 BLANCO, cost 400 + 25 %: 500.00 proposed
//   banks        1 Banrural, 2 Banco Industrial
//   applications 41 (key 1): approved, ANA LUCÍA, 1300 in lines, enganche 100, first payment 200,
//                   10 months, mora 10: owes 100 | 200 | 1300, instalments of 100, mora 10
//                40 (key 2): pending, PEDRO
//                42 (key 3): approved, PEDRO, no lines, nothing owed
//                43 (key 4): approved, PEDRO, 500 in lines, no months: a balance with no instalment
//                44 (key 5): rejected, ANA LUCÍA
//   receipts     7 (key 1): for the plain name JUAN PÉREZ, one line of Flete 25.00 in cash, no bank
//                8 (key 2): for the client PEDRO, the refrigerator at 500.00 by a cheque of Banrural
class ReciboEnPantalla : public EnPantalla<caja::frmRecibo> {
public:
    // The clock stopped on kHoy; the screen opened from "Recibos".
    ReciboEnPantalla();

    // "Buscar", picking the receipt of this number.
    void buscarRecibo(const QString& numero);
    // "Agregar", then the application of this number typed in "No. Solicitud:" and left.
    void nuevoPara(const QString& solicitud);

    // The next pick list answered by the concept of this description, or by "Cancelar" when it lists
    // none such; what it listed kept in `conceptosOfrecidos`.
    void elegirConcepto(const QString& descripcion);
    QStringList conceptosOfrecidos;
    // The next line dialog answered: the value (and quantity) typed where given, closed by `cierre`.
    // What it showed on opening is kept.
    void responderLinea(const QString& valor, const QString& cierre = QStringLiteral("&Aceptar"),
                        const QString& cantidad = {});
    QString tituloDelDialogo, valorAlAbrir;
    bool cantidadHabilitada = true;
    // Insert on the grid's last row with the concept picked; for an ordinary concept, `valor` typed
    // in the line dialog that follows.
    void insertarConcepto(const QString& descripcion, const QString& valor = {});

    // A key on fgDetalle's row `fila`; a double click on it.
    void tecla(Qt::Key k, int fila = 1, Qt::KeyboardModifiers modificadores = Qt::NoModifier);
    void dobleClic(int fila);
    // The lines, cells joined by "|"; the balances' row, the same way.
    QStringList lineas();
    QString saldos();
    // The cash typed and left, which works "Total recibido:" out.
    void efectivo(const QString& monto);
};
