#pragma once

// The two modes of a record screen (shell::PantallaRegistro) as its tests check them after a gesture:
// still editing, with the edit's transaction open, or browsing again, with none. Both look at the
// whole bar by caption, so they fit any bar that has "Guardar" and "Cancelar".
#include <QList>
#include <QString>

class QWidget;

namespace shell {
class PantallaRegistro;
}

// Still editing: the mode word shown (reading `estado`, when one is given), "Guardar" and "Cancelar"
// the only buttons of the bar, fraMain and the screen's other editing controls `deEdicion` enabled,
// and one transaction open on the shared connection, counted in TransaccionActiva.
void verificarEdicion(const shell::PantallaRegistro& pantalla, const QString& estado = {},
                      const QList<const QWidget*>& deEdicion = {});
// Browsing again: no mode word, every button of the bar but "Guardar" and "Cancelar", fraMain and
// `deEdicion` disabled, and no transaction, neither on the shared connection nor in TransaccionActiva.
void verificarConsulta(const shell::PantallaRegistro& pantalla, const QList<const QWidget*>& deEdicion = {});
