#pragma once

#include <QString>

namespace shell {
class Marco;
}

// The two procedures other screens use on articles.
namespace Common {

// Creates an article on the shared connection, so inside the caller's transaction, and returns its
// new key. Activo is left to the table's default.
long CrearArticulo(const QString& Nombre, const QString& Modelo, const QString& Color, double Costo,
                   double ContadoPorcentaje, double ContadoValor, double CreditoPorcentaje,
                   double CreditoValor);

// Whether a sale of Cantidad units at Precio may go on: not more than the stock, and not below cost
// (a Precio of 0 switches the cost test off). Each test that fails shows its message with the title of
// Pantalla, so one call may show two messages in a row. An unknown article is a failure.
bool ValidarVentaArticulo(shell::Marco& Pantalla, long ArticuloID, long Cantidad, double Precio);

} // namespace Common
