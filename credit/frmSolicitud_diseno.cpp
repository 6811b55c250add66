// The layout of the credit application: fraMain with the application's data in ten rows, the lines
// under it, fraSubMain with the plan, and the hidden bound boxes. Lengths in twips.
#include "credit/frmSolicitud.h"
#include "shell/common/Twips.h"
#include "shell/controles/CamposDeTexto.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace credito {

namespace {

constexpr double kAnchoPanel = 12855;

void negrita(QLabel* l, int puntos = 0) {
    QFont f = l->font();
    f.setBold(true);
    if (puntos > 0) f.setPointSize(puntos);
    l->setFont(f);
}

void centrada(CajaTexto* c) {
    c->setAlignment(Qt::AlignCenter);
}

void aLaDerecha(CajaTexto* c) {
    c->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace

// A text box with its caption at its left, bound to the application's column when one is named.
CajaTexto* frmSolicitud::caja(const QString& nombre, const QString& rotulo, double rotuloLeft, double left,
                              double top, double ancho, const QString& campo) {
    etiqueta(rotulo, rotuloLeft, top + 30, left - rotuloLeft - 40);
    auto* c = this->campo<CajaTexto>(nombre, left, top, ancho);
    if (!campo.isEmpty()) enlazar(c, adoSolicitud, campo);
    return c;
}

// A box of a time, years or months, with its unit at its right; bound to nothing, centred, digits only.
CajaTexto* frmSolicitud::tiempo(const QString& nombre, const QString& unidad, double left, double top) {
    auto* c = campo<CajaTexto>(nombre, left, top, 400);
    centrada(c);
    SoloDigitos(c);
    etiqueta(unidad, left + 440, top + 30, 520);
    return c;
}

CajaTexto* frmSolicitud::oculta(const QString& nombre, const QString& campo) {
    auto* c = this->campo<CajaTexto>(nombre, 0, 0, 0);
    c->hide();
    enlazar(c, adoSolicitud, campo);
    return c;
}

// One value of a read-only panel, with its caption at its left.
QLabel* frmSolicitud::dato(QFrame* panel, const QString& nombre, const QString& rotulo, double left,
                           double top, double anchoRotulo, double ancho) {
    etiquetaEn(panel, rotulo, left, top, anchoRotulo);
    auto* l = campoEn<QLabel>(panel, nombre, left + anchoRotulo + 40, top, ancho, 255);
    negrita(l);
    return l;
}

// Created in the order Enter and Tab go through them: rows 1 to 10 in reading order.
void frmSolicitud::DisenarDatos() {
    // Row 1.
    txtNumeroSolicitud = caja(QStringLiteral("txtNumeroSolicitud"), QStringLiteral("NumeroSolicitud:"), 120,
                              1560, 120, 1200, QStringLiteral("NumeroSolicitud"));
    etiqueta(QStringLiteral("Fecha:"), 2940, 150, 560);
    dpFecha = campo<SelectorFecha>(QStringLiteral("dpFecha"), 3540, 120, 1500, 300);
    panEstado = campo<QLabel>(QStringLiteral("panEstado"), 7800, 60, 6300, 450);
    panEstado->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    panEstado->setText(QStringLiteral("EN PROCESO DE APROBACION"));
    panEstado->setStyleSheet(QStringLiteral("color: rgb(0, 0, 128);"));
    negrita(panEstado, 14);

    // Row 2: the client.
    cmdCliente = campo<QPushButton>(QStringLiteral("cmdCliente"), 120, 600, 1100, 330);
    cmdCliente->setText(QStringLiteral("Cliente >"));
    cmdNuevoCliente = campo<QPushButton>(QStringLiteral("cmdNuevoCliente"), 120, 960, 1100, 330);
    cmdNuevoCliente->setText(QStringLiteral("Nuevo >"));
    panCliente = campo<QFrame>(QStringLiteral("panCliente"), 1320, 600, kAnchoPanel, 690);
    panCliente->setFrameShape(QFrame::StyledPanel);

    // Rows 3 to 5: the client's home.
    negrita(etiqueta(QStringLiteral("Datos particulares"), 120, 1360, 3000));
    etiqueta(QStringLiteral("Estado civíl:"), 120, 1630, 1040);
    dacEstadoCivil = campo<ComboDatos>(QStringLiteral("dacEstadoCivil"), 1200, 1600, 1600, 300);
    dacEstadoCivil->setRowSource(adoEstadoCivil);
    dacEstadoCivil->setListField(QStringLiteral("Descripcion"));
    dacEstadoCivil->setBoundColumn(QStringLiteral("EstadoCivilID"));
    enlazar(dacEstadoCivil, adoSolicitud, QStringLiteral("EstadoCivilID"));
    txtCasaDireccion = caja(QStringLiteral("txtCasaDireccion"), QStringLiteral("Direccion:"), 2920, 3800,
                            1600, 4400, QStringLiteral("CasaDireccion"));
    txtCasaZona = caja(QStringLiteral("txtCasaZona"), QStringLiteral("Zona:"), 8320, 8820, 1600, 520,
                       QStringLiteral("CasaZona"));
    txtCasaEstado = caja(QStringLiteral("txtCasaEstado"), QStringLiteral("Departamento:"), 9460, 10660, 1600,
                         1500, QStringLiteral("CasaEstado"));
    txtCasaCodigoPostal = caja(QStringLiteral("txtCasaCodigoPostal"), QStringLiteral("Codigo Postal:"), 12280,
                               13420, 1600, 760, QStringLiteral("CasaCodigoPostal"));

    txtCasaTelefonos = caja(QStringLiteral("txtCasaTelefonos"), QStringLiteral("Telefonos:"), 120, 1200, 2180,
                            1600, QStringLiteral("CasaTelefonos"));
    etiqueta(QStringLiteral("Casa:"), 2920, 1960, 1000);
    chkCasaPropia = campo<QCheckBox>(QStringLiteral("chkCasaPropia"), 2920, 2180, 820);
    chkCasaPropia->setText(QStringLiteral("Propia"));
    enlazar(chkCasaPropia, adoSolicitud, QStringLiteral("CasaPropia"));
    chkCasaAlquilada = campo<QCheckBox>(QStringLiteral("chkCasaAlquilada"), 3780, 2180, 1060);
    chkCasaAlquilada->setText(QStringLiteral("Alquilada"));
    enlazar(chkCasaAlquilada, adoSolicitud, QStringLiteral("CasaAlquilada"));
    etiqueta(QStringLiteral("Tiempo de residir:"), 5000, 1960, 1900);
    txtCasaTiempoA = tiempo(QStringLiteral("txtCasaTiempoA"), QStringLiteral("años"), 5000, 2180);
    txtCasaTiempoM = tiempo(QStringLiteral("txtCasaTiempoM"), QStringLiteral("meses"), 5980, 2180);
    txtCelular = caja(QStringLiteral("txtCelular"), QStringLiteral("Celular:"), 7120, 7840, 2180, 1500,
                      QStringLiteral("Celular"));
    txtEmail = caja(QStringLiteral("txtEmail"), QStringLiteral("Email:"), 9460, 10060, 2180, 4120,
                    QStringLiteral("Email"));

    // Rows 6 to 9: the client's job.
    negrita(etiqueta(QStringLiteral("Información laboral"), 120, 2620, 3000));
    txtTrabajoNombre = caja(QStringLiteral("txtTrabajoNombre"), QStringLiteral("Trabajo:"), 120, 1200, 2880,
                            3440, QStringLiteral("TrabajoNombre"));
    txtTrabajoDireccion = caja(QStringLiteral("txtTrabajoDireccion"), QStringLiteral("Direccion:"), 4760,
                               5640, 2880, 2560, QStringLiteral("TrabajoDireccion"));
    txtTrabajoZona = caja(QStringLiteral("txtTrabajoZona"), QStringLiteral("Zona:"), 8320, 8820, 2880, 520,
                          QStringLiteral("TrabajoZona"));
    txtTrabajoEstado = caja(QStringLiteral("txtTrabajoEstado"), QStringLiteral("Departamento:"), 9460, 10660,
                            2880, 1500, QStringLiteral("TrabajoEstado"));
    txtTrabajoCodigoPostal = caja(QStringLiteral("txtTrabajoCodigoPostal"), QStringLiteral("Codigo Postal:"),
                                  12280, 13420, 2880, 760, QStringLiteral("TrabajoCodigoPostal"));

    txtTrabajoTelefonos = caja(QStringLiteral("txtTrabajoTelefonos"), QStringLiteral("Telefonos:"), 120, 1200,
                               3460, 1600, QStringLiteral("TrabajoTelefonos"));
    txtTrabajoFax = caja(QStringLiteral("txtTrabajoFax"), QStringLiteral("Fax:"), 2920, 3360, 3460, 1400,
                         QStringLiteral("TrabajoFax"));
    txtTrabajoSueldo = caja(QStringLiteral("txtTrabajoSueldo"), QStringLiteral("Ingreso mensual:"), 4880,
                            6300, 3460, 1200, QStringLiteral("TrabajoSueldo"));
    txtTrabajoPuesto = caja(QStringLiteral("txtTrabajoPuesto"), QStringLiteral("Puesto:"), 7620, 8320, 3460,
                            2700, QStringLiteral("TrabajoPuesto"));
    etiqueta(QStringLiteral("Tiempo de laborar:"), 11160, 3240, 1900);
    txtTrabajoTiempoA = tiempo(QStringLiteral("txtTrabajoTiempoA"), QStringLiteral("años"), 11160, 3460);
    txtTrabajoTiempoM = tiempo(QStringLiteral("txtTrabajoTiempoM"), QStringLiteral("meses"), 12140, 3460);

    txtTrabajoJefe = caja(QStringLiteral("txtTrabajoJefe"), QStringLiteral("Jefe:"), 120, 1200, 3880, 3440,
                          QStringLiteral("TrabajoJefe"));
    txtOtrosIngresos = caja(QStringLiteral("txtOtrosIngresos"), QStringLiteral("Otros Ingresos:"), 4760, 6060,
                            3880, 3000, QStringLiteral("OtrosIngresos"));
    txtFiadorParentesco =
        caja(QStringLiteral("txtFiadorParentesco"), QStringLiteral("Parentesco del cliente con el fiador:"),
             9180, 12100, 3880, 2080, QStringLiteral("FiadorParentesco"));

    // Row 10: the guarantor.
    cmdFiador = campo<QPushButton>(QStringLiteral("cmdFiador"), 120, 4320, 1100, 330);
    cmdFiador->setText(QStringLiteral("Fiador >"));
    cmdNuevoFiador = campo<QPushButton>(QStringLiteral("cmdNuevoFiador"), 120, 4680, 1100, 330);
    cmdNuevoFiador->setText(QStringLiteral("Nuevo >"));
    panFiador = campo<QFrame>(QStringLiteral("panFiador"), 1320, 4320, kAnchoPanel, 2040);
    panFiador->setFrameShape(QFrame::StyledPanel);

    for (CajaTexto* c : {txtCasaZona, txtTrabajoZona})
        centrada(c);
    for (CajaTexto* c : {txtCasaZona, txtTrabajoZona})
        SoloDigitos(c);
    aLaDerecha(txtTrabajoSueldo);
}

// The seven values of the client in two lines, and the nineteen of the guarantor in four columns.
void frmSolicitud::DisenarPaneles() {
    const auto cliente = [this](int i, const QString& rotulo, double left, double top, double anchoRotulo,
                                double ancho) {
        lblClienteInfo << dato(panCliente, QStringLiteral("lblClienteInfo(%1)").arg(i), rotulo, left, top,
                               anchoRotulo, ancho);
    };
    cliente(0, QStringLiteral("Nombre completo:"), 120, 80, 1440, 4500);
    cliente(1, QStringLiteral("Fecha nacimiento:"), 6260, 80, 1440, 2600);
    cliente(2, QStringLiteral("Edad:"), 10500, 80, 500, 1400);
    cliente(3, QStringLiteral("Número de cédula:"), 120, 380, 1440, 1900);
    cliente(4, QStringLiteral("Extendida en:"), 3660, 380, 1100, 2400);
    cliente(5, QStringLiteral("Código de cliente:"), 7320, 380, 1500, 900);
    cliente(6, QStringLiteral("Límite de crédito:  Q."), 9860, 380, 1800, 1000);

    const QStringList rotulos = {QStringLiteral("Nombre completo:"),
                                 QStringLiteral("Fecha nacimiento:"),
                                 QStringLiteral("Edad:"),
                                 QStringLiteral("Número de cédula:"),
                                 QStringLiteral("Extendida en:"),
                                 QStringLiteral("Estado civíl:"),
                                 QStringLiteral("Casa:"),
                                 QStringLiteral("Dirección:"),
                                 QStringLiteral("Teléfonos:"),
                                 QStringLiteral("Tiempo de residir:"),
                                 QStringLiteral("Trabajo:"),
                                 QStringLiteral("Dirección:"),
                                 QStringLiteral("Teléfonos:"),
                                 QStringLiteral("FAX:"),
                                 QStringLiteral("Puesto:"),
                                 QStringLiteral("Jefe inmediato:"),
                                 QStringLiteral("Tiempo de laborar:"),
                                 QStringLiteral("Ingreso mensual:"),
                                 QStringLiteral("Otros ingresos:")};
    const double anchoColumna = kAnchoPanel / 3;
    for (int i = 0; i < rotulos.size(); ++i)
        lblFiadorInfo << dato(panFiador, QStringLiteral("lblFiadorInfo(%1)").arg(i), rotulos[i],
                              120 + (i / 7) * anchoColumna, 60 + (i % 7) * 270, 1480, anchoColumna - 1720);
}

// The plan, in two lines, created in the order Enter goes through them after the lines.
void frmSolicitud::DisenarPlan() {
    const auto plan = [this](const QString& nombre, const QString& rotulo, double rotuloLeft, double left,
                             double top, double ancho) {
        etiquetaEn(fraSubMain, rotulo, rotuloLeft, top + 30, left - rotuloLeft - 40);
        auto* c = campoEn<CajaTexto>(fraSubMain, nombre, left, top, ancho);
        aLaDerecha(c);
        return c;
    };
    const auto cifra = [this](const QString& nombre, const QString& rotulo, double rotuloLeft, double left,
                              double top, double ancho) {
        etiquetaEn(fraSubMain, rotulo, rotuloLeft, top + 30, left - rotuloLeft - 40);
        auto* l = campoEn<QLabel>(fraSubMain, nombre, left, top + 30, ancho, 255);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        l->setText(QStringLiteral("0.00"));
        negrita(l);
        return l;
    };
    txtDescuentoP =
        plan(QStringLiteral("txtDescuentoP"), QStringLiteral("Descuento (%):"), 120, 1400, 90, 900);
    txtDescuento =
        plan(QStringLiteral("txtDescuento"), QStringLiteral("Descuento (Q):"), 2480, 3760, 90, 1200);
    enlazar(txtDescuento, adoSolicitud, QStringLiteral("Descuento"), QStringLiteral("#,##0.00"));
    txtEnganche = plan(QStringLiteral("txtEnganche"), QStringLiteral("Enganche:"), 5160, 6060, 90, 1200);
    enlazar(txtEnganche, adoSolicitud, QStringLiteral("Enganche"), QStringLiteral("#,##0.00"));
    txtPrimerPago =
        plan(QStringLiteral("txtPrimerPago"), QStringLiteral("Primer pago:"), 7460, 8540, 90, 1200);
    enlazar(txtPrimerPago, adoSolicitud, QStringLiteral("PrimerPago"), QStringLiteral("#,##0.00"));
    lblTotalCredito = cifra(QStringLiteral("lblTotalCredito"), QStringLiteral("Saldo a financiar:  Q."), 9960,
                            11760, 90, 1500);
    txtMesesCredito =
        plan(QStringLiteral("txtMesesCredito"), QStringLiteral("Meses de crédito:"), 120, 1400, 480, 900);
    enlazar(txtMesesCredito, adoSolicitud, QStringLiteral("MesesCredito"));
    lblAbonoMensual =
        cifra(QStringLiteral("lblAbonoMensual"), QStringLiteral("Abono mensual:  Q."), 2480, 4160, 480, 1200);
    txtDiaPago = plan(QStringLiteral("txtDiaPago"), QStringLiteral("A pagar el:"), 5560, 6500, 480, 460);
    txtDiaPago->setMaxLength(2);
    centrada(txtDiaPago);
    enlazar(txtDiaPago, adoSolicitud, QStringLiteral("DiaPago"));
    etiquetaEn(fraSubMain, QStringLiteral("de cada mes."), 7020, 510, 1200);
}

} // namespace credito
