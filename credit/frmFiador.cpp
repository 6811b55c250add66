#include "credit/frmFiador.h"

#include "credit/Personas.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace credito {

namespace {

const QString kVacio = QStringLiteral("Select * From Fiador Where FiadorID < 0");

// Months from a years box and a months box, as stored: years x 12 + months.
QString Meses(const CajaTexto* anios, const CajaTexto* meses) {
    return runtime::TextoDe(runtime::Val(anios->Text()) * 12 + runtime::Val(meses->Text()));
}

} // namespace

frmFiador::frmFiador()
    : PantallaRegistro(QStringLiteral("Fiadores"), 11160, 5250) {
    setObjectName(QStringLiteral("frmFiador"));
    adoFiador = new store::Adodc(this);
    adoFiador->setObjectName(QStringLiteral("adoFiador"));
    adoFiador->setRecordSource(kVacio);
    adoEstadoCivil = new store::Adodc(this);
    adoEstadoCivil->setObjectName(QStringLiteral("adoEstadoCivil"));
    adoEstadoCivil->setRecordSource(QStringLiteral("Select * From EstadoCivil"));

    // Created row by row, so that Tab and Enter move along each row and then down.
    txtNombres = caja(QStringLiteral("txtNombres"), QStringLiteral("Nombres:"), 120, 800, 960, 120, 2535,
                      QStringLiteral("Nombres"));
    txtApellidos = caja(QStringLiteral("txtApellidos"), QStringLiteral("Apellidos:"), 3615, 800, 4455, 120,
                        2535, QStringLiteral("Apellidos"));
    etiqueta(QStringLiteral("Fecha de nacimiento:"), 7110, 150, 1560);
    dpFecha = campo<SelectorFecha>(QStringLiteral("dpFecha"), 8700, 120, 1500, 300);

    txtCedulaRegistro = caja(QStringLiteral("txtCedulaRegistro"), QStringLiteral("Cedula:"), 120, 800, 960,
                             480, 600, QStringLiteral("CedulaRegistro"));
    txtCedulaNumero = campo<CajaTexto>(QStringLiteral("txtCedulaNumero"), 1620, 480, 1875);
    enlazar(txtCedulaNumero, adoFiador, QStringLiteral("CedulaNumero"));
    txtCedulaExtendida = caja(QStringLiteral("txtCedulaExtendida"), QStringLiteral("Extendida:"), 3615, 800,
                              4455, 480, 2535, QStringLiteral("CedulaExtendida"));
    etiqueta(QStringLiteral("EstadoCivil:"), 7110, 510, 1560);
    dacEstadoCivil = campo<ComboDatos>(QStringLiteral("dacEstadoCivil"), 8700, 480, 1500, 300);
    dacEstadoCivil->setRowSource(adoEstadoCivil);
    dacEstadoCivil->setListField(QStringLiteral("Descripcion"));
    dacEstadoCivil->setBoundColumn(QStringLiteral("EstadoCivilID"));
    enlazar(dacEstadoCivil, adoFiador, QStringLiteral("EstadoCivilID"));

    encabezado(QStringLiteral("Datos particulares"), 900);
    txtDireccion = caja(QStringLiteral("txtDireccion"), QStringLiteral("Direccion:"), 120, 800, 960, 1440,
                        3255, QStringLiteral("Direccion"));
    txtTelefonos = caja(QStringLiteral("txtTelefonos"), QStringLiteral("Telefonos:"), 4335, 800, 5175, 1440,
                        1695, QStringLiteral("Telefonos"));
    etiqueta(QStringLiteral("Casa:"), 6990, 1200, 800);
    chkCasaPropia = campo<QCheckBox>(QStringLiteral("chkCasaPropia"), 6990, 1440, 760);
    chkCasaPropia->setText(QStringLiteral("Propia"));
    enlazar(chkCasaPropia, adoFiador, QStringLiteral("CasaPropia"));
    chkCasaAlquilada = campo<QCheckBox>(QStringLiteral("chkCasaAlquilada"), 7790, 1440, 1000);
    chkCasaAlquilada->setText(QStringLiteral("Alquilada"));
    enlazar(chkCasaAlquilada, adoFiador, QStringLiteral("CasaAlquilada"));
    etiqueta(QStringLiteral("Tiempo:"), 8880, 1200, 1700);
    txtCasaTiempoA = tiempo(QStringLiteral("txtCasaTiempoA"), QStringLiteral("años"), 8880, 1440);
    txtCasaTiempoM = tiempo(QStringLiteral("txtCasaTiempoM"), QStringLiteral("meses"), 9720, 1440);

    encabezado(QStringLiteral("Información laboral"), 1860);
    txtTrabajoNombre = caja(QStringLiteral("txtTrabajoNombre"), QStringLiteral("Trabajo:"), 120, 800, 960,
                            2160, 6030, QStringLiteral("TrabajoNombre"));
    txtTrabajoDireccion = caja(QStringLiteral("txtTrabajoDireccion"), QStringLiteral("Dirección:"), 120, 800,
                               960, 2520, 3255, QStringLiteral("TrabajoDireccion"));
    txtTrabajoTelefonos = caja(QStringLiteral("txtTrabajoTelefonos"), QStringLiteral("Telefonos:"), 4335, 800,
                               5175, 2520, 1695, QStringLiteral("TrabajoTelefonos"));
    txtTrabajoFax = caja(QStringLiteral("txtTrabajoFax"), QStringLiteral("FAX:"), 6990, 500, 7550, 2520, 1500,
                         QStringLiteral("TrabajoFax"));
    txtTrabajoPuesto = caja(QStringLiteral("txtTrabajoPuesto"), QStringLiteral("Puesto:"), 120, 800, 960,
                            3120, 3615, QStringLiteral("TrabajoPuesto"));
    txtTrabajoJefe = caja(QStringLiteral("txtTrabajoJefe"), QStringLiteral("Jefe inmediato:"), 4695, 1200,
                          5935, 3120, 2800, QStringLiteral("TrabajoJefe"));
    etiqueta(QStringLiteral("Tiempo de laborar:"), 8880, 2880, 1700);
    txtTrabajoTiempoA = tiempo(QStringLiteral("txtTrabajoTiempoA"), QStringLiteral("años"), 8880, 3120);
    txtTrabajoTiempoM = tiempo(QStringLiteral("txtTrabajoTiempoM"), QStringLiteral("meses"), 9720, 3120);
    txtTrabajoSueldo = caja(QStringLiteral("txtTrabajoSueldo"), QStringLiteral("Ingreso mensual:"), 120, 1300,
                            1500, 3480, 1200, QStringLiteral("TrabajoSueldo"));
    txtTrabajoSueldo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    SoloDigitos(txtTrabajoSueldo);
    txtOtrosIngresos = caja(QStringLiteral("txtOtrosIngresos"), QStringLiteral("Otros Ingresos:"), 2880, 1200,
                            4140, 3480, 6460, QStringLiteral("OtrosIngresos"));

    // Hidden and bound.
    const auto oculta = [this](const QString& nombre, const QString& campo) {
        auto* c = this->campo<CajaTexto>(nombre, 0, 0, 0);
        c->hide();
        enlazar(c, adoFiador, campo);
        return c;
    };
    txtFiadorID = oculta(QStringLiteral("txtFiadorID"), QStringLiteral("FiadorID"));
    txtFechaNacimiento = oculta(QStringLiteral("txtFechaNacimiento"), QStringLiteral("FechaNacimiento"));
    txtCasaTiempo = oculta(QStringLiteral("txtCasaTiempo"), QStringLiteral("CasaTiempo"));
    txtTrabajoTiempo = oculta(QStringLiteral("txtTrabajoTiempo"), QStringLiteral("TrabajoTiempo"));

    MayusculasAlTeclear(txtNombres);
    MayusculasAlTeclear(txtApellidos);
    txtCedulaRegistro->alValidar([this] { txtCedulaRegistro_Validate(); });
}

// A text box with its caption at its left, bound to the guarantor's column when one is named.
CajaTexto* frmFiador::caja(const QString& nombre, const QString& rotulo, double rotuloLeft,
                           double rotuloAncho, double left, double top, double ancho, const QString& campo) {
    etiqueta(rotulo, rotuloLeft, top + 30, rotuloAncho);
    auto* c = this->campo<CajaTexto>(nombre, left, top, ancho);
    if (!campo.isEmpty()) enlazar(c, adoFiador, campo);
    return c;
}

// A box of a time, years or months, with its unit at its right; bound to nothing, digits only.
CajaTexto* frmFiador::tiempo(const QString& nombre, const QString& unidad, double left, double top) {
    auto* c = campo<CajaTexto>(nombre, left, top, 360);
    c->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    SoloDigitos(c);
    etiqueta(unidad, left + 400, top + 30, 560);
    return c;
}

void frmFiador::encabezado(const QString& texto, double top) {
    QLabel* l = etiqueta(texto, 120, top, 3000);
    QFont negrita = l->font();
    negrita.setBold(true);
    l->setFont(negrita);
}

void frmFiador::Form_Load() {
    adoEstadoCivil->Refresh();
    adoFiador->Refresh();
    AjustarPantalla();
    MostrarTiempos();
}

void frmFiador::txtCedulaRegistro_Validate() {
    txtCedulaExtendida->setText(ExtendidaSegunRegistro(txtCedulaRegistro->Text()));
}

bool frmFiador::SinFila() {
    store::Recordset& rs = *adoFiador->Recordset();
    return rs.Eof() && rs.Bof();
}

// The picker and the time boxes from the row. Only the load calls it, when the screen is still empty.
void frmFiador::MostrarTiempos() {
    if (SinFila()) return;
    dpFecha->setValue(txtFechaNacimiento->Text());
    txtCasaTiempoA->setText(runtime::TextoDe(runtime::Int(runtime::Val(txtCasaTiempo->Text()) / 12)));
    txtCasaTiempoM->setText(
        runtime::TextoDe(runtime::Val(txtCasaTiempo->Text()) - runtime::Val(txtCasaTiempoA->Text()) * 12));
    txtTrabajoTiempoA->setText(runtime::TextoDe(runtime::Int(runtime::Val(txtTrabajoTiempo->Text()) / 12)));
    txtTrabajoTiempoM->setText(runtime::TextoDe(runtime::Val(txtTrabajoTiempo->Text()) -
                                                runtime::Val(txtTrabajoTiempoA->Text()) * 12));
}

void frmFiador::cmdBoton_Click(int Index) {
    ConManejadorDeBarra([&] { Boton(cmdBoton[Index]->text()); });
}

void frmFiador::Boton(const QString& boton) {
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        Agregar();
    } else if (boton == QLatin1String("Modificar")) {
        Modificar();
    } else if (boton == QLatin1String("Eliminar")) {
        if (!SinFila()) EliminarFiador();
    } else if (boton == QLatin1String("Imprimir")) {
        // Nothing is printed.
    } else if (boton == QLatin1String("Guardar")) {
        Guardar();
    } else if (boton == QLatin1String("Cancelar")) {
        adoFiador->Recordset()->CancelUpdate();
        ModoConsulta();
    }
}

// Brings up the guarantor picked; the picker and the time boxes keep what they showed.
void frmFiador::Buscar() {
    if (shell::Buscar(*this, QStringLiteral("Select * From vwBuscaFiador"), QStringLiteral("Busca fiador"))) {
        adoFiador->setRecordSource(QStringLiteral("Select * From Fiador Where FiadorID = %1")
                                       .arg(runtime::TextoDe(Common::Parametros(1))));
        adoFiador->Refresh();
    }
}

void frmFiador::Agregar() {
    Agregando = true;
    ModoEdicion(QStringLiteral("Agregar nuevo registro"));
    for (CajaTexto* c : {txtCasaTiempoA, txtCasaTiempoM, txtTrabajoTiempoA, txtTrabajoTiempoM})
        c->setText(QString());
    dpFecha->setValue(runtime::Ahora().date());
    adoFiador->Recordset()->AddNew();
    txtNombres->setFocus();
}

// With no guarantor shown there is nothing to modify, and nothing is said.
void frmFiador::Modificar() {
    if (SinFila()) return;
    Agregando = false;
    ModoEdicion(QStringLiteral("Modificar registro actual"));
}

// No field is checked. The birth date and the times come from the picker and the boxes as they stand.
void frmFiador::Guardar() {
    txtFechaNacimiento->setText(runtime::TextoFecha(dpFecha->Value()));
    txtCasaTiempo->setText(Meses(txtCasaTiempoA, txtCasaTiempoM));
    txtTrabajoTiempo->setText(Meses(txtTrabajoTiempoA, txtTrabajoTiempoM));
    store::Recordset& rs = *adoFiador->Recordset();
    rs.Update();
    rs.Resync();
    Common::IDSeleccionado = static_cast<long>(rs.Fields(QStringLiteral("FiadorID")).Value().toLongLong());
    ModoConsulta();
}

void frmFiador::EliminarFiador() {
    EliminarPersona(
        *this, lblTitulo->text(), *adoFiador,
        {QStringLiteral("Fiador"), QStringLiteral("FiadorID"), QStringLiteral("Desactivar este fiador")});
}

} // namespace credito
