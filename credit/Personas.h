#pragma once

#include <QString>

namespace shell {
class Formulario;
}
namespace store {
class Adodc;
}

// What the client and guarantor screens do alike.
namespace credito {

// The place an identity card was issued, as far as its registry tells it: "A-1" (in any letter case)
// is the capital's registry, so "Capital"; any other registry leaves the place empty for the clerk.
QString ExtendidaSegunRegistro(const QString& registro);

// A person's table as the deletion names it.
struct TablaDePersona {
    QString tabla;            // "Cliente"
    QString clave;            // "ClienteID"
    QString opcionDesactivar; // "Desactivar este cliente"
};

// The deletion both screens offer, through ElegirOpcion with the screen's title: "Desactivar ..." sets
// Activo = 0 and leaves the person shown; "Eliminar el registro" deletes the row (what names it, such
// as a client's history, stays) and shows the empty set; the close box does nothing. The key is read
// from the data control's current row, so with no row shown the step fails. Any failure shows the
// driver's text through MostrarMensaje with the screen's title, and the screen stays as it was.
void EliminarPersona(shell::Formulario& pantalla, const QString& titulo, store::Adodc& ado,
                     const TablaDePersona& persona);

} // namespace credito
