#pragma once

#include "store/Conexion.h"

#include <QString>

namespace store {

// The number a new document is offered: the highest `campo` of the rows of `tabla` that meet
// `condicion`, plus one; 1 for an empty table. Reopens the connection if it was closed.
qint32 SiguienteNumero(Conexion& cn, const QString& tabla, const QString& campo, const QString& condicion);

// The Tipo of a concept: 0 when Null. A concept that does not exist is a Fallo, as reading a
// field of an empty result is.
qint32 TipoConcepto(Conexion& cn, qint32 conceptoID);

} // namespace store
