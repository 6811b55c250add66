#include "store/Adodc.h"

namespace store {

Adodc::Adodc(QObject* parent, const QString& cadenaConexion)
    : QObject(parent)
    , conexion_(cadenaConexion) {
    connect(&rs_, &Recordset::filaCambiada, this, &Adodc::filaActualCambiada);
    connect(&rs_, &Recordset::valoresCambiados, this, &Adodc::valoresCambiados);
}

void Adodc::Refresh() {
    if (conexion_.State() != adStateOpen) conexion_.Open();
    if (rs_.State() == adStateOpen) rs_.Close();
    rs_.Open(fuente_, conexion_);
}

} // namespace store
