#include "catalogs/frmBanco.h"

#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"
#include "shell/controles/EnlaceDatos.h"

using namespace shell;

namespace catalogos {

frmBanco::frmBanco()
    : PantallaRegistro(QStringLiteral("Bancos del sistema"), 6840, 2400) {
    setObjectName(QStringLiteral("frmBanco"));
    adoBanco = new store::Adodc(this);
    adoBanco->setObjectName(QStringLiteral("adoBanco"));
    adoBanco->setRecordSource(QStringLiteral("Select * From Banco"));

    etiqueta(QStringLiteral("Nombre:"), 120, 150);
    txtNombre = campo<CajaTexto>(QStringLiteral("txtNombre"), 960, 120, 5295);
    etiqueta(QStringLiteral("Direccion:"), 120, 510);
    txtDireccion = campo<CajaTexto>(QStringLiteral("txtDireccion"), 960, 480, 5295);
    enlazar(txtNombre, adoBanco, QStringLiteral("Nombre"));
    enlazar(txtDireccion, adoBanco, QStringLiteral("Direccion"));
}

void frmBanco::Form_Load() {
    adoBanco->Refresh();
    AjustarPantalla();
}

void frmBanco::cmdBoton_Click(int Index) {
    const QString boton = cmdBoton[Index]->text();
    store::Recordset& rs = *adoBanco->Recordset();
    if (boton == QLatin1String("Buscar")) {
        Buscar();
    } else if (boton == QLatin1String("Agregar")) {
        rs.AddNew();
        Agregando = true;
        ModoEdicion(QStringLiteral("Agregar nuevo registro"));
        txtNombre->setFocus();
    } else if (boton == QLatin1String("Modificar")) {
        Agregando = false;
        ModoEdicion(QStringLiteral("Modificar registro actual"));
    } else if (boton == QLatin1String("Eliminar")) {
        rs.Delete();
        adoBanco->Refresh();
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

void frmBanco::Buscar() {
    Common::AtenuarTitulo(*this);
    auto& listado = Common::Pantalla<frmListado>();
    listado.setLeft(Left() + 300);
    listado.setTop(Top() + 300);
    listado.CargarLista(
        QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Order By Nombre"));
    listado.lblTitulo->setText(QStringLiteral(" Listado de bancos del sistema"));
    listado.ShowModal();
    Common::ResaltarTitulo(*this);
    if (Common::IDSeleccionado > 0) {
        store::Recordset& rs = *adoBanco->Recordset();
        rs.MoveFirst();
        rs.Find(QStringLiteral("BancoID = %1").arg(Common::IDSeleccionado), 0);
    }
}

} // namespace catalogos
