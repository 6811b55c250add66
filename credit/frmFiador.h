#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/controles/ComboDatos.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

#include <QCheckBox>

namespace credito {

// The guarantors: a full personal and work record behind each credit. It opens empty and shows a
// guarantor only through "Buscar". Nothing runs inside a transaction: "Guardar" stores the row at once
// through the data control's own connection and "Cancelar" only drops the pending row. The bar has an
// error handler: the driver's text goes to the clerk and the screen keeps its mode.
//
// The birth date and the two times (stored in months, shown in years and months) are entered once, at
// creation: the picker and the four time boxes are filled from the row only when the screen loads, and
// whatever they show is what "Guardar" stores, also after a search brought up another guarantor.
class frmFiador : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmFiador();

    store::Adodc* adoFiador;
    store::Adodc* adoEstadoCivil;

    shell::CajaTexto* txtNombres;
    shell::CajaTexto* txtApellidos;
    shell::SelectorFecha* dpFecha;
    shell::CajaTexto* txtCedulaRegistro;
    shell::CajaTexto* txtCedulaNumero;
    shell::CajaTexto* txtCedulaExtendida;
    shell::ComboDatos* dacEstadoCivil;
    shell::CajaTexto* txtDireccion;
    shell::CajaTexto* txtTelefonos;
    QCheckBox* chkCasaPropia;
    QCheckBox* chkCasaAlquilada;
    shell::CajaTexto* txtCasaTiempoA;
    shell::CajaTexto* txtCasaTiempoM;
    shell::CajaTexto* txtTrabajoNombre;
    shell::CajaTexto* txtTrabajoDireccion;
    shell::CajaTexto* txtTrabajoTelefonos;
    shell::CajaTexto* txtTrabajoFax;
    shell::CajaTexto* txtTrabajoPuesto;
    shell::CajaTexto* txtTrabajoJefe;
    shell::CajaTexto* txtTrabajoTiempoA;
    shell::CajaTexto* txtTrabajoTiempoM;
    shell::CajaTexto* txtTrabajoSueldo;
    shell::CajaTexto* txtOtrosIngresos;

    // Hidden and bound: the key, and the columns "Guardar" composes from the picker and the boxes.
    shell::CajaTexto* txtFiadorID;
    shell::CajaTexto* txtFechaNacimiento;
    shell::CajaTexto* txtCasaTiempo;
    shell::CajaTexto* txtTrabajoTiempo;

    void txtCedulaRegistro_Validate();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void Boton(const QString& boton);
    void Buscar();
    void Agregar();
    void Modificar();
    void Guardar();
    void EliminarFiador();
    void MostrarTiempos();
    bool SinFila();
    shell::CajaTexto* caja(const QString& nombre, const QString& rotulo, double rotuloLeft,
                           double rotuloAncho, double left, double top, double ancho,
                           const QString& campo = {});
    shell::CajaTexto* tiempo(const QString& nombre, const QString& unidad, double left, double top);
    void encabezado(const QString& texto, double top);
};

} // namespace credito
