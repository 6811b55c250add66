#include "catalogs/frmProveedor.h"

#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "shell/controles/EnlaceDatos.h"
#include "shell/dialogos/Dialogos.h"

using namespace shell;

namespace catalogos {

namespace {
const QString kVacio = QStringLiteral("Select * From Proveedor Where ProveedorID < 0");
}

frmProveedor::frmProveedor()
    : PantallaRegistro(QStringLiteral("Proveedores"), 7200, 2900) {
    setObjectName(QStringLiteral("frmProveedor"));
    adoProveedor = new store::Adodc(this);
    adoProveedor->setObjectName(QStringLiteral("adoProveedor"));
    adoProveedor->setRecordSource(kVacio);

    // Each box with its caption at its left (a short caption stands closer).
    const auto caja = [this](const QString& nombre, const QString& rotulo, double left, double top,
                             double ancho, const QString& campo) {
        const double rotuloAncho = rotulo.size() <= 4 ? 500 : 800;
        etiqueta(rotulo, left - rotuloAncho - 40, top + 30, rotuloAncho);
        auto* c = this->campo<CajaTexto>(nombre, left, top, ancho);
        enlazar(c, adoProveedor, campo);
        return c;
    };
    txtNombre = caja(QStringLiteral("txtNombre"), QStringLiteral("Nombre:"), 960, 120, 3375,
                     QStringLiteral("Nombre"));
    Text1 = caja(QStringLiteral("Text1"), QStringLiteral("NIT:"), 5040, 120, 1695, QStringLiteral("NIT"));
    Text2 = caja(QStringLiteral("Text2"), QStringLiteral("Direccion:"), 960, 480, 5775,
                 QStringLiteral("Direccion"));
    Text3 = caja(QStringLiteral("Text3"), QStringLiteral("Telefonos:"), 960, 840, 2535,
                 QStringLiteral("Telefonos"));
    Text4 = caja(QStringLiteral("Text4"), QStringLiteral("FAX:"), 4080, 840, 2655, QStringLiteral("Fax"));
    Text5 = caja(QStringLiteral("Text5"), QStringLiteral("Contacto:"), 960, 1200, 5775,
                 QStringLiteral("Contacto"));
    txtProveedorID = campo<CajaTexto>(QStringLiteral("txtProveedorID"), 0, 0, 0);
    txtProveedorID->hide();
    enlazar(txtProveedorID, adoProveedor, QStringLiteral("ProveedorID"));
}

void frmProveedor::Form_Load() {
    adoProveedor->Refresh();
    AjustarPantalla();
}

// The whole bar runs under one handler: any failure shows the driver's text and leaves the screen as
// it was, in its mode, with the row unsaved.
void frmProveedor::cmdBoton_Click(int Index) {
    ConManejadorDeBarra([&] { Boton(cmdBoton[Index]->text()); });
}

void frmProveedor::Boton(const QString& boton) {
    store::Recordset& rs = *adoProveedor->Recordset();
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        // The screen is set up first, then the row is started.
        Agregando = true;
        ModoEdicion(QStringLiteral("Agregar nuevo registro"));
        rs.AddNew();
        txtNombre->setFocus();
    } else if (boton == QLatin1String("Modificar")) {
        Agregando = false;
        ModoEdicion(QStringLiteral("Modificar registro actual"));
    } else if (boton == QLatin1String("Eliminar")) {
        if (Common::Preguntar(lblTitulo->text(), QStringLiteral("En realidad desea eliminar este proveedor"),
                              *this) == QLatin1String("Aceptar")) {
            rs.Delete();
            MostrarVacio();
        }
    } else if (boton == QLatin1String("Imprimir")) {
        // Nothing is printed.
    } else if (boton == QLatin1String("Guardar")) {
        rs.Update();
        ModoConsulta();
    } else if (boton == QLatin1String("Cancelar")) {
        rs.CancelUpdate();
        ModoConsulta();
    }
}

void frmProveedor::Buscar() {
    Common::AtenuarTitulo(*this);
    auto& listado = Common::Pantalla<frmListado>();
    listado.setLeft(Left() + 300);
    listado.setTop(Top() + 300);
    listado.CargarLista(
        QStringLiteral("Select ProveedorID as Codigo, Nombre as Descripcion From Proveedor Order By Nombre"));
    listado.lblTitulo->setText(QStringLiteral(" Listado de proveedores"));
    listado.ShowModal();
    Common::ResaltarTitulo(*this);
    if (Common::IDSeleccionado > 0) {
        adoProveedor->setRecordSource(
            QStringLiteral("Select * From Proveedor Where ProveedorID = %1").arg(Common::IDSeleccionado));
        adoProveedor->Refresh();
    }
}

void frmProveedor::MostrarVacio() {
    adoProveedor->setRecordSource(kVacio);
    adoProveedor->Refresh();
}

} // namespace catalogos
