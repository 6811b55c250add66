#pragma once

#include <QString>

namespace shell {
class Formulario;
}

// The system's whole message vocabulary: the four dialog procedures of Common. Each dims the calling
// screen's title, fills its dialog, places it 400 twips to the right of and below the caller's top
// left corner, shows it modally and highlights the caller's title again. The title is usually the
// caller's own lblTitulo caption.
namespace Common {

// A message of up to three lines; the only way out is the close box. RespuestaDialogo is untouched.
void MostrarMensaje(const QString& Titulo, const QString& Mensaje, shell::Formulario& Pantalla);

// Asks "¿Pregunta?" (the caller gives the bare question; a CR LF inside makes two lines).
// "Aceptar" or "Cancelar".
QString Preguntar(const QString& Titulo, const QString& Pregunta, shell::Formulario& Pantalla);

// One button per option in Parametros (at least one). The chosen option's text, or "Cancelar" when
// the close box is used.
QString ElegirOpcion(const QString& Titulo, shell::Formulario& Pantalla);

// A one-line prompt opening on Valor trimmed. "Aceptar" or "Cancelar"; on "Aceptar" the trimmed text
// is in TextoSeleccionado.
QString PedirTexto(const QString& Titulo, const QString& Pregunta, shell::Formulario& Pantalla,
                   const QString& Valor);

} // namespace Common
