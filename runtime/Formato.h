#pragma once

// Format de VB para los patrones que usa el programa: numéricos ("#,##0.00",
// "#0.00", "#.00", "0", "#") y de fecha ("dd/mm/yyyy", "mmmm", "yyyy"...).
// Los números se redondean con las mitades lejos del cero sobre su texto de 15
// cifras (como RedondearDecimal), y el separador es siempre "." con miles ",".

#include <QString>
#include <QVariant>

namespace runtime {

// Null da "" con cualquier patrón; el texto numérico se formatea como número, el
// texto que es fecha con un patrón de fecha como fecha, y otro texto queda igual.
QString Format(const QVariant& valor, const QString& patron);
QString Format(double valor, const QString& patron);

// "Enero".."Diciembre" para 1..12; "" para otro número.
QString MesEnLetras(int mes);

} // namespace runtime
