// The lines of the application in fgDetalle: article key (hidden), quantity, description and the
// amount of the line, which is what the total adds up and what is stored as Precio. A line added with
// Insert takes quantity times price; a line edited (Enter, double click) takes the dialog's price as
// it stands, not multiplied. Every key on the grid while editing ends in SumarDetalle; a double click
// doesn't.
#include "credit/frmSolicitud.h"
#include "credit/frmSolicitudArticulo.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/busqueda/frmBusca.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Recordset.h"


using namespace shell;

namespace credito {

void frmSolicitud::ConfigurarDetalle() {
    fgDetalle->setCols(4);
    fgDetalle->setRows(2);
    const QStringList encabezados = {QString(), QStringLiteral("Cantidad"),
                                     QStringLiteral("Descripción del artículo"), QStringLiteral("Precio")};
    const double anchos[] = {0, 1300, 11000, 1600};
    for (int c = 0; c < 4; ++c) {
        fgDetalle->setTextMatrix(0, c, encabezados[c]);
        fgDetalle->setColWidth(c, anchos[c]);
    }
    fgDetalle->setColAlignment(1, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->setColAlignment(2, GrillaDetalle::flexAlignLeftCenter);
    fgDetalle->setColAlignment(3, GrillaDetalle::flexAlignRightCenter);
    fgDetalle->FormatoEncabezado();
}

// The lines of the application shown, quantities with two decimals, then the plan. A failure is told
// and ends the reading.
void frmSolicitud::CargarDetalle() {
    AvisarSiFalla([this] {
        store::Recordset rs;
        rs.Open(QStringLiteral(
                    "Select SD.SolicitudID, SD.ArticuloID, SD.Cantidad, A.Nombre & ' ' & A.Modelo & ' ' "
                    "& A.Color as NombreArticulo, SD.Precio From SolicitudDetalle SD INNER JOIN "
                    "Articulo A ON SD.ArticuloID = A.ArticuloID Where SD.SolicitudID = ") +
                    runtime::TextoDe(runtime::Val(txtSolicitudID->Text())),
                Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
        fgDetalle->Vaciar();
        while (!rs.Eof()) {
            const double cantidad = runtime::ValNulo(rs.Fields(QStringLiteral("Cantidad")).Value());
            const double precio = runtime::ValNulo(rs.Fields(QStringLiteral("Precio")).Value());
            fgDetalle->AddItem(
                QStringList{runtime::TextoDe(rs.Fields(QStringLiteral("ArticuloID")).Value()),
                            runtime::Format(cantidad, QStringLiteral("#.00")),
                            runtime::TextoDe(rs.Fields(QStringLiteral("NombreArticulo")).Value()),
                            runtime::Format(precio, QStringLiteral("#.00"))}
                    .join(QLatin1Char('\t')));
            rs.MoveNext();
        }
        if (fgDetalle->Rows() > 2) fgDetalle->RemoveItem(1);
        MostrarPlan();
    });
}

// The line dialog, at the screen's Left + 300, Top + 300.
void frmSolicitud::AbrirLinea() {
    auto& dialogo = Common::Pantalla<frmSolicitudArticulo>();
    dialogo.Move(Left() + 300, Top() + 300);
    dialogo.ShowModal();
}

// Insert: an article picked in the search, its quantity and price set in the dialog; the line takes
// quantity times price.
void frmSolicitud::fgDetalle_Insertar() {
    if (!shell::Buscar(*this, QStringLiteral("Select * From vwBuscaArticulo"),
                       QStringLiteral("Busca articulos")))
        return;
    Common::AtenuarTitulo(*this);
    AbrirLinea();
    Common::ResaltarTitulo(*this);
    if (Common::Parametros.Vacio(1)) return;
    const auto p = [](int i) { return runtime::TextoDe(Common::Parametros(i)); };
    const double cantidad = runtime::Val(p(8) + QLatin1Char(' '));
    lineas_->AgregarFila({p(1), runtime::Format(cantidad, QStringLiteral("#0")),
                          p(2) + QLatin1Char(' ') + p(3) + QLatin1Char(' ') + p(4),
                          runtime::Format(runtime::Val(p(5)) * runtime::Val(p(8)), QStringLiteral("#.00"))});
}

// Enter and the double click: the line's cells go to the dialog and come back as they stand.
void frmSolicitud::fgDetalle_DblClick() {
    const int fila = fgDetalle->Row();
    Common::Parametros.ReDim(8);
    Common::Parametros(1) = fgDetalle->TextMatrix(fila, 0);
    Common::Parametros(8) = fgDetalle->TextMatrix(fila, 1);
    Common::Parametros(2) = fgDetalle->TextMatrix(fila, 2);
    Common::Parametros(5) = fgDetalle->TextMatrix(fila, 3);
    Common::AtenuarTitulo(*this);
    AbrirLinea();
    Common::ResaltarTitulo(*this);
    if (Common::Parametros.Vacio(1)) return;
    fgDetalle->setTextMatrix(fila, 0, runtime::TextoDe(Common::Parametros(1)));
    fgDetalle->setTextMatrix(fila, 1, runtime::TextoDe(Common::Parametros(8)));
    fgDetalle->setTextMatrix(fila, 2, runtime::TextoDe(Common::Parametros(2)));
    fgDetalle->setTextMatrix(fila, 3, runtime::TextoDe(Common::Parametros(5)));
}

} // namespace credito
