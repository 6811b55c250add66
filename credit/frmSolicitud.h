#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/controles/ComboDatos.h"
#include "shell/controles/GrillaDetalle.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/LineasDeDetalle.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"
#include "store/Conexion.h"

#include <QCheckBox>
#include <QLabel>
#include <QList>
#include <QPushButton>

namespace credito {

// The credit application: a client and a guarantor bound to a list of articles and a plan of payment,
// and the status receipts, invoices and deliveries depend on. Its class is written in four files:
//   frmSolicitud.cpp           the layout, the bar and the status (search, add, modify, save, approve...)
//   frmSolicitud_plan.cpp      the plan arithmetic on the texts of fraSubMain
//   frmSolicitud_lineas.cpp    the lines of fgDetalle and their round trip through frmSolicitudArticulo
//   frmSolicitud_personas.cpp  the client and guarantor buttons and their read-only panels
//
// Editing runs inside a transaction of the shared connection, begun by "Agregar" and "Modificar" and
// ended by "Guardar" or "Cancelar"; "Rechazar" and the deletion have transactions of their own, and
// "Aprobar" none. The bar has an error handler: the driver's text goes to the clerk and the screen keeps
// its mode, a refused save keeping its transaction open for a second try or "Cancelar".
class frmSolicitud : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmSolicitud();

    store::Adodc* adoSolicitud;
    store::Adodc* adoEstadoCivil;

    QFrame* fraSubMain;
    QLabel* panEstado;

    shell::CajaTexto* txtNumeroSolicitud;
    shell::SelectorFecha* dpFecha;
    QPushButton* cmdCliente;
    QPushButton* cmdNuevoCliente;
    QFrame* panCliente;
    QList<QLabel*> lblClienteInfo; // 7, by index

    shell::ComboDatos* dacEstadoCivil;
    shell::CajaTexto* txtCasaDireccion;
    shell::CajaTexto* txtCasaZona;
    shell::CajaTexto* txtCasaEstado;
    shell::CajaTexto* txtCasaCodigoPostal;
    shell::CajaTexto* txtCasaTelefonos;
    QCheckBox* chkCasaPropia;
    QCheckBox* chkCasaAlquilada;
    shell::CajaTexto* txtCasaTiempoA;
    shell::CajaTexto* txtCasaTiempoM;
    shell::CajaTexto* txtCelular;
    shell::CajaTexto* txtEmail;

    shell::CajaTexto* txtTrabajoNombre;
    shell::CajaTexto* txtTrabajoDireccion;
    shell::CajaTexto* txtTrabajoZona;
    shell::CajaTexto* txtTrabajoEstado;
    shell::CajaTexto* txtTrabajoCodigoPostal;
    shell::CajaTexto* txtTrabajoTelefonos;
    shell::CajaTexto* txtTrabajoFax;
    shell::CajaTexto* txtTrabajoSueldo;
    shell::CajaTexto* txtTrabajoPuesto;
    shell::CajaTexto* txtTrabajoTiempoA;
    shell::CajaTexto* txtTrabajoTiempoM;
    shell::CajaTexto* txtTrabajoJefe;
    shell::CajaTexto* txtOtrosIngresos;
    shell::CajaTexto* txtFiadorParentesco;

    QPushButton* cmdFiador;
    QPushButton* cmdNuevoFiador;
    QFrame* panFiador;
    QList<QLabel*> lblFiadorInfo; // 19, by index

    shell::GrillaDetalle* fgDetalle;
    QLabel* lblTotalPagar;

    shell::CajaTexto* txtDescuentoP;
    shell::CajaTexto* txtDescuento;
    shell::CajaTexto* txtEnganche;
    shell::CajaTexto* txtPrimerPago;
    QLabel* lblTotalCredito;
    shell::CajaTexto* txtMesesCredito;
    QLabel* lblAbonoMensual;
    shell::CajaTexto* txtDiaPago;

    // Hidden and bound.
    shell::CajaTexto* txtSolicitudID;
    shell::CajaTexto* txtClienteID;
    shell::CajaTexto* txtFiadorID;
    shell::CajaTexto* txtFecha;
    shell::CajaTexto* txtCasaTiempo;
    shell::CajaTexto* txtTrabajoTiempo;

    bool Editando = false;

    void txtNumeroSolicitud_Validate();
    void txtDescuentoP_Validate();
    void txtDescuento_Validate();
    void txtEnganche_Validate();
    void txtPrimerPago_Validate();
    void txtMesesCredito_Validate();
    void txtDiaPago_Validate();
    void cmdCliente_Click();
    void cmdFiador_Click();
    void cmdNuevoCliente_Click();
    void cmdNuevoFiador_Click();

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    // frmSolicitud.cpp
    void Boton(const QString& boton);
    void MostrarSolicitud();
    void Buscar();
    void Agregar();
    void Modificar();
    void Guardar();
    void Cancelar();
    void Aprobar();
    void Rechazar();
    void Eliminar();
    bool ValidarSolicitud();
    bool GuardarSolicitud();
    void EliminarSolicitud();
    void TerminarEdicion();
    QVariant Estado();

    // frmSolicitud_diseno.cpp
    void DisenarDatos();
    void DisenarPlan();
    void DisenarPaneles();
    shell::CajaTexto* caja(const QString& nombre, const QString& rotulo, double rotuloLeft, double left,
                           double top, double ancho, const QString& campo = {});
    shell::CajaTexto* tiempo(const QString& nombre, const QString& unidad, double left, double top);
    shell::CajaTexto* oculta(const QString& nombre, const QString& campo);
    QLabel* dato(QFrame* panel, const QString& nombre, const QString& rotulo, double left, double top,
                 double anchoRotulo, double ancho);

    // frmSolicitud_plan.cpp
    void SumarDetalle();
    void CalcularSaldo();
    void CalcularAbono();
    void PorcentajeDesdeMonto();
    void MontoDesdePorcentaje();
    void MostrarPlan();

    // frmSolicitud_lineas.cpp
    void ConfigurarDetalle();
    void CargarDetalle();
    void fgDetalle_Insertar();
    void fgDetalle_DblClick();
    void AbrirLinea();

    // frmSolicitud_personas.cpp
    void CargarCliente();
    void CargarFiador();
    void LimpiarCliente();
    void LimpiarFiador();
    void LlenarCliente(store::Recordset& rs);
    void LlenarFiador(store::Recordset& rs);
    bool ClienteSuficiente(store::Recordset& rs);

    shell::LineasDeDetalle* lineas_;
    // The client panel reads on a connection of its own, which never sees rows pending in the shared
    // transaction; opened on first use and kept while the screen lives.
    store::Conexion conexionClientes_{QStringLiteral("Data Source=DSNBrenal;")};
};

} // namespace credito
