#pragma once

// Uso interno de runtime: Format con patrones de fecha ("dd/mm/yyyy", "mmmm").

#include <QDate>
#include <QString>

namespace runtime::detalle {

// Un patrón es de fecha si tiene algún código de día, mes o año (d, m, y, en
// mayúsculas o minúsculas, como en VB; "dd/MM/yyyy" es lo mismo que "dd/mm/yyyy").
bool esPatronDeFecha(const QString& patron);

QString formatearFecha(const QDate& fecha, const QString& patron);

} // namespace runtime::detalle
