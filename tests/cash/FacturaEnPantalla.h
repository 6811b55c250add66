#pragma once

// What the invoice's test programs share: the store's rows before each test, the screen opened from
// "Facturas" as the clerk opens it, and the clerk's gestures on it (the bar, typing and leaving a field,
// the searches and the pick list answered, the line dialog answered, keys and double clicks on the
// grid, the dialogs answered by their buttons), made of the shared gestures of Gestos.h, on the frame
// of EnPantalla.h.
#include "EnPantalla.h"
#include "cash/frmFactura.h"

#include <QDate>
#include <QString>
#include <QStringList>

// Today, unless a test moves the clock.
inline const QDate kHoyFactura(2026, 3, 10);

// The rows every test starts from (the concepts are the schema's: 1 to 4 of the plan, 7 "Flete" and
// 8 "Instalación" among the ordinary ones):
//   clients      1 ANA LUCÍA GONZÁLEZ (NIT 1234567-8), 2 PEDRO RAMÍREZ (NIT empty),
//                3 LUISA MÉNDEZ (NIT C/F)
//   articles     1 REFRIGERADORA RT38 BLANCO (cost 400 + 25 %: 500.00), 2 ESTUFA E4 GRIS (100 + Q30: 130.00)
//   applications 50 (key 1): approved, ANA LUCÍA; 1 refrigerator for 500 and 2 stoves for 260, discount
//                60.00; paid off by one receipt (enganche 200 and one instalment of 500): balance 0
//                51 (key 2): approved, PEDRO; 1 stove for 130, paid 129.99: balance 0.01
//                52 (key 3): pending, ANA LUCÍA; 1 refrigerator for 500, nothing paid
//                53 (key 4): paid off (state 2), LUISA; 1 stove for 130, paid 150: balance -20.00
//   invoices     7 (key 1) of 20/02/2026 to ANA LUCÍA: 1 stove at 130.00, cash 200.00, change 70.00
class FacturaEnPantalla : public EnPantalla<caja::frmFactura> {
public:
    // The clock stopped on kHoyFactura; the screen opened from "Facturas".
    FacturaEnPantalla();

    // A button of the bar, the screen made active before it as well.
    void pulsar(const QString& caption) {
        activar(pantalla());
        EnPantalla::pulsar(caption);
    }

    // Into a box as the clerk does (escribir), its window, the screen's or a dialog's, made active
    // first.
    static void escribir(QWidget* caja, const QString& texto) {
        activar(*caja->window());
        ::escribir(caja, texto);
    }

    // The next search screen answered by a row with this cell (elegirEnBusqueda); the texts of the
    // column headed `columna` go to `vistos` when asked for.
    void elegir(const QString& celda, QStringList* vistos = nullptr,
                const QString& columna = QStringLiteral("Solicitud")) {
        elegirEnBusqueda(entorno(), celda, vistos, columna);
    }
    // The next pick list answered by a double click on the row of this description (none: closed).
    void elegirDeLista(const QString& descripcion);
    // The next line dialog answered: the quantity and the price typed where given, then "&Aceptar"
    // (or, with `aceptar` false, the close box).
    void responderLinea(const QString& cantidad, const QString& precio, bool aceptar = true);
    // The next dialog answered by a button of this caption (or "cmdClose"); its text kept in `texto`.
    void responder(const QString& boton, QString* texto = nullptr) { ::responder(entorno(), boton, texto); }

    // A key on the grid, on its row `fila`, with its modifiers.
    void tecla(Qt::Key k, int fila = 1, Qt::KeyboardModifiers modificadores = Qt::NoModifier);
    // A double click on the cells of row `fila`.
    void dobleClic(int fila);
    // The grid's data rows, cells joined by "|".
    QStringList filas() { return filasDe(*pantalla().fgDetalle); }

    // "Agregar", then application `numero` typed in and the field left.
    void facturarSolicitud(const QString& numero);
    // Insert: the article of this name from the search, then its dialog with quantity and price.
    void agregarArticulo(const QString& articulo, const QString& cantidad, const QString& precio);
    // Shift+Insert: the concept of this description from the list, then its dialog.
    void agregarConcepto(const QString& concepto, const QString& cantidad, const QString& precio);
};
