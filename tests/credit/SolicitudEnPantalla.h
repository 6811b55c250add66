#pragma once

// What the two test programs of the credit application share: the store's rows before each test,
// the screen opened from "Créditos" as the clerk opens it, and the clerk's gestures on this screen
// (the bar, the client and guarantor searches, a line added through Insert and its dialog), made of
// the shared gestures of Gestos.h, on the frame of EnPantalla.h.
#include "EnPantalla.h"
#include "credit/frmSolicitud.h"

#include <QDate>
#include <QPointF>
#include <QString>
#include <QStringList>

// Today, unless a test moves the clock.
inline const QDate kHoy(2026, 3, 10);

// The rows every test starts from:
//   clients      1 ANA LUCÍA GONZÁLEZ (complete, limit 5000; her registry stored between blanks),
//                2 PEDRO RAMÍREZ (limit 0), 3 LUISA MÉNDEZ (limit Null)
//   guarantors   1 MARIO LÓPEZ (owns and rents, 14 months at home, 30 in his job, married),
//                2 ROSA PÉREZ (no birth date, rents), 3 JUAN SOTO (neither owns nor rents)
//   articles     1 REFRIGERADORA RT38 BLANCO (cost 400 + 25 %: 500.00, 20 in stock),
//                2 ESTUFA E4 GRIS (cost 100 + Q30: 130.00, 20 in stock),
//                3 TELEVISOR TV50 NEGRO (cost 800 + 10 %: 880.00, 1 in stock)
//   applications 40 (key 1): pending, ANA LUCÍA with MARIO, 3 stoves for 390, Enganche 100, 12 months;
//                41 (key 2): approved, ANA LUCÍA with ROSA, 1 refrigerator for 500, 10 months
class SolicitudEnPantalla : public EnPantalla<credito::frmSolicitud> {
public:
    // The clock stopped on kHoy; the screen opened from "Créditos".
    SolicitudEnPantalla();

    // The next search screen answered by a row with this cell (elegirEnBusqueda).
    void elegir(const QString& celda) { elegirEnBusqueda(entorno(), celda); }
    // "Buscar" on the screen, picking the application of this number.
    void buscarSolicitud(const QString& numero);
    // "Cliente >" and "Fiador >", picking by a cell of the search (a surname, a name), or cancelling.
    void elegirCliente(const QString& celda);
    void elegirFiador(const QString& celda);

    // The next line dialog answered: the quantity and the price typed where given, closed by
    // `cierre` ("&Aceptar", "&Cancelar" or "cmdClose"). What it showed on opening is kept, and where
    // it stood from the screen's top left corner, in twips.
    void responderLinea(const QString& cantidad, const QString& precio,
                        const QString& cierre = QStringLiteral("&Aceptar"));
    QString cantidadAlAbrir, precioAlAbrir;
    QPointF lugarDelDialogo;
    // Insert on the grid: the article picked by its name (none: the search closed), then the dialog.
    void insertarLinea(const QString& articulo, const QString& cantidad = {}, const QString& precio = {},
                       const QString& cierre = QStringLiteral("&Aceptar"));
    // A key on the grid, on its row `fila`.
    void tecla(Qt::Key k, int fila = 1);
    // A double click on the cells of row `fila`.
    void dobleClic(int fila);
    // The grid's data rows, cells joined by "|".
    QStringList filas();

    // The next dialog answered by a button of this caption (or "cmdClose"); its text kept in `texto`.
    void responder(const QString& boton, QString* texto = nullptr) { ::responder(entorno(), boton, texto); }
    // The next text prompt answered with this text and "Aceptar".
    void responderTexto(const QString& texto) { ::responderTexto(entorno(), texto); }

    // "Agregar", then everything an application needs: client ANA LUCÍA, guarantor MARIO, the
    // relation, and the given lines (articles by name, each added with its proposed quantity and
    // price). Leaves the screen editing.
    void llenarNueva(const QStringList& articulos = {QStringLiteral("REFRIGERADORA"),
                                                     QStringLiteral("ESTUFA")});
};
