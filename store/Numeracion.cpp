#include "store/Numeracion.h"

#include "runtime/Conversion.h"
#include "store/Recordset.h"

namespace store {

qint32 SiguienteNumero(Conexion& cn, const QString& tabla, const QString& campo, const QString& condicion) {
    if (cn.State() == adStateClosed) cn.Open();
    Recordset rs;
    rs.Open(QStringLiteral("Select Max(") + campo + QStringLiteral(") as Maximo From ") + tabla +
                QStringLiteral(" Where ") + condicion,
            cn, adOpenStatic, adLockReadOnly);
    return runtime::CLng(runtime::ValNulo(rs.Fields(QStringLiteral("Maximo")).Value()) + 1);
}

qint32 TipoConcepto(Conexion& cn, qint32 conceptoID) {
    Recordset rs;
    rs.Open(QStringLiteral("Select Tipo From Concepto Where ConceptoID = ") + QString::number(conceptoID), cn,
            adOpenStatic, adLockReadOnly);
    return runtime::CLng(runtime::ValNulo(rs.Fields(QStringLiteral("Tipo")).Value()));
}

} // namespace store
