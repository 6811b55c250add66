#pragma once

#include "cash/BloquePago.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/LineasDeDetalle.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

#include <QColor>
#include <QPushButton>

namespace caja {

// What the two money screens, the receipt and the invoice, have in common. Each is a record screen
// whose edit runs inside a transaction of the shared connection, from "Agregar" or "Modificar" to
// "Guardar" or "Cancelar", and whose document is for one of three parties:
//
//   an application   its number typed in txtNumeroSolicitud (or found with F2) and the field left;
//                    the client's name shown, locked
//   a client         picked with "Cliente >"; the name shown, locked
//   a typed name     a double click opens txtNombreCliente, emptied and pale yellow
//
// Every change of party forgets the other two (both keys 0) and wipes the lines. The lines stand in
// fgDetalle: a line is real when it names a concept or an article, and goes through the article line
// dialog of credit applications; concepts are picked from the pick list. The tender is BloquePago.
//
// A screen builds its own controls (the names below, placed by its layout), then calls Conectar; it
// says only what differs: its layout, its three party handlers, the columns and keys of its lines, its
// checks at "Guardar" and its save.
class PantallaDeCaja : public shell::PantallaRegistro {
    Q_OBJECT
public:
    bool Editando = false;
    long SolicitudID = 0;
    long ClienteID = 0;

    shell::SelectorFecha* dpFecha = nullptr;
    shell::CajaTexto* txtNumeroSolicitud = nullptr;
    QPushButton* cmdCliente = nullptr;
    shell::CajaTexto* txtNombreCliente = nullptr;
    shell::GrillaDetalle* fgDetalle = nullptr;
    BloquePago* panBanco = nullptr;

    // Leaving the application's number loads it; F2 (113) finds one.
    virtual void txtNumeroSolicitud_Validate() = 0;
    virtual void txtNumeroSolicitud_KeyDown(int KeyCode, int Shift) = 0;
    // "Cliente >".
    virtual void cmdCliente_Click() = 0;
    // The double click that opens the name for typing.
    virtual void txtNombreCliente_DblClick() = 0;
    // Leaving the name: upper case.
    void txtNombreCliente_Validate();

protected:
    using PantallaRegistro::PantallaRegistro;

    // Once the screen's controls stand: the name locked as designed (its colour kept for
    // BloquearNombre), both fields selecting all on focus, the handlers above attached, the line keys
    // of fgDetalle in lineas_ (blank rows being those with no concept nor article), the guard on
    // closing with a transaction open. `documento` is the screen's data control.
    void Conectar(store::Adodc* documento);

    // "Agregar" (true) or "Modificar" (false): Editando, Agregando and the bar's editing mode.
    void EmpezarEdicion(bool agregar);
    // Back to browsing, both flags false.
    void TerminarEdicion();
    // "Cancelar": the pending row dropped and the transaction rolled back, whatever the edit wrote
    // included; the lines and the fields keep what they show.
    void Cancelar();

    // The first checks at "Guardar", with the receipt's own words on both screens; each tells the
    // clerk and answers true when the document can't go on. A number of 0 or less:
    bool FaltaNumero(const shell::CajaTexto* numero);
    // Only the blank row in the grid (its first cell empty; a line of 0.00 passes):
    bool FaltanLineas();

    // The application's number refused, with this message: the number and its Tag back to "0".
    void RechazarSolicitud(const QString& mensaje);
    static const QString kSolicitudNoEncontrada;

    // Who pays is forgotten: both keys 0, the lines wiped. A screen with more to wipe adds it.
    virtual void OlvidarPersona();
    // The name back to the field's own colour, locked.
    void BloquearNombre();
    // The name emptied and opened for typing, pale yellow.
    void AbrirNombre();
    // The client search; on a pick, ClienteID and the name (given names and surnames) from its row,
    // the rest of the row left in Parametros. False when it was closed without one.
    bool ElegirCliente();

    // The pick list of concepts over this query, under " Lista de conceptos", at Left + 300, Top + 300,
    // with the title dimmed meanwhile. True when one was picked (IDSeleccionado, TextoSeleccionado).
    bool ElegirConcepto(const QString& consulta);
    // The line dialog at Left + 300, Top + 300, over Parametros as the caller left them, dressed for a
    // concept or not.
    void AbrirLinea(bool comoConcepto);
    // A line names a concept or an article: Val of cell 0 plus Val of cell 1 above 0.
    bool EsLineaReal(int fila) const;

    shell::LineasDeDetalle* lineas_ = nullptr;

private:
    store::Adodc* documento_ = nullptr;
    QColor colorNombre_;
};

} // namespace caja
