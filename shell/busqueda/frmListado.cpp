#include "shell/busqueda/frmListado.h"

#include "runtime/Conversion.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "store/Fallo.h"

#include <QVBoxLayout>

namespace shell {

namespace {

constexpr double kAncho = 6000;
constexpr double kAlto = 5400;

// A field that is Null can't go into a Long or a String: the failure nothing here catches.
QVariant noNulo(const QVariant& valor) {
    if (runtime::EsNulo(valor))
        throw store::Fallo(store::numeroFallo(0x800A005Eu), QStringLiteral("Uso no válido de Null"));
    return valor;
}

} // namespace

frmListado::frmListado()
    : Marco(QString(), kAncho, kAlto) {
    setObjectName(QStringLiteral("frmListado"));
    setKeyPreview(true);
    delete lblEstado; // no mode word on this screen
    lblEstado = nullptr;

    Adodc = new store::Adodc(this);
    Adodc->setObjectName(QStringLiteral("Adodc"));
    Adodc->setRecordSource(QStringLiteral("Select ClienteID as Codigo, Nombres & ' ' & Apellidos as "
                                          "Descripcion From Cliente Where ClienteID=-1"));

    DataGrid = new RejillaDeDatos(fraMain);
    DataGrid->setObjectName(QStringLiteral("DataGrid"));
    auto* disposicion = new QVBoxLayout(fraMain);
    disposicion->setContentsMargins(px(60), px(60), px(60), px(60));
    disposicion->addWidget(DataGrid);
    DataGrid->setDataSource(Adodc);
    DataGrid->enlazarColumnas({{QStringLiteral("Codigo"), QStringLiteral("Codigo")},
                               {QStringLiteral("Descripcion"), QStringLiteral("Descripcion")}});
    DataGrid->Columns(0).setWidth(1000);
    DataGrid->Columns(1).setWidth(3900);
    connect(DataGrid, &RejillaDeDatos::DblClick, this, [this] { Common::Manejar([this] { Elegir(); }); });

    crearBoton(0, QStringLiteral("&Aceptar"), 120);
    crearBoton(1, QStringLiteral("Cancelar"), 1440);
    setTabOrder(DataGrid, cmdBoton[0]);
    setTabOrder(cmdBoton[0], cmdBoton[1]);
}

// The caller's first touch of the instance runs this, so CargarLista always comes after it.
void frmListado::Form_Load() {
    AjustarTituloYBarra();
    const double arriba = altoTw(lblTitulo) + 120;
    colocar(fraMain, 120, arriba, Width() - 270, topTw(fraBarra) - arriba - 120);
    Common::IDSeleccionado = 0;
    Common::TextoSeleccionado.clear();
    DataGrid->setFocus();
}

void frmListado::CargarLista(const QString& Consulta) {
    Common::IDSeleccionado = 0;
    Common::TextoSeleccionado.clear();
    Adodc->setRecordSource(Consulta);
    Adodc->Refresh();
    DataGrid->Refresh(); // the bound grid reads the new rows
}

void frmListado::cmdBoton_Click(int Index) {
    const QString caption = cmdBoton[Index]->text();
    if (caption == QLatin1String("&Aceptar")) {
        Elegir();
    } else if (caption == QLatin1String("Cancelar")) {
        Common::IDSeleccionado = 0;
        Common::TextoSeleccionado.clear();
        Unload();
    }
}

// The current row is the pick; on an empty list nothing happens and the list stays.
void frmListado::Elegir() {
    store::Recordset* rs = Adodc->Recordset();
    if (rs->Eof() && rs->Bof()) return;
    Common::IDSeleccionado = runtime::CLng(noNulo(rs->Fields(0).Value()));
    Common::TextoSeleccionado = runtime::TextoDe(noNulo(rs->Fields(1).Value()));
    Unload();
}

} // namespace shell
