#pragma once

#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QObject>

namespace store {

// The data control of a screen: a statement (RecordSource), its own connection to the data source,
// and the recordset that Refresh reads. Bound controls follow its current row through
// filaActualCambiada and valoresCambiados. The recordset object stays the same across refreshes,
// so a pointer to it stays valid; each Refresh gives it back the control's own connection.
class Adodc : public QObject {
    Q_OBJECT
public:
    explicit Adodc(QObject* parent = nullptr,
                   const QString& cadenaConexion = QStringLiteral("DSN=DSNBrenal"));

    QString RecordSource() const { return fuente_; }
    void setRecordSource(const QString& fuente) { fuente_ = fuente; }

    // Opens the control's connection if need be and reads RecordSource again.
    void Refresh();
    store::Recordset* Recordset() { return &rs_; }
    Conexion conexion() const { return conexion_; }

Q_SIGNALS:
    void filaActualCambiada();
    void valoresCambiados();

private:
    Conexion conexion_;
    QString fuente_;
    store::Recordset rs_;
};

} // namespace store
