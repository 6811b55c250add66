// The lines of a goods-in note in fgDetalle, thirteen columns; the hidden ones carry what the line
// needs to create its article:
//   0 ArticuloID ("*" to create)  1 Nombre  2 Modelo  3 Color  4 unit cost  5 ContadoPorcentaje
//   6 ContadoValor  7 quantity  8 Egresos  9 Existencia  10 CreditoPorcentaje  11 CreditoValor
//   12 cost times quantity
// A line goes to frmNotaIngresoArticulo and back as Parametros(1..12), columns 0 to 11. The keys
// (Insert, Delete, Enter) end in ActualizarTotal. Editing a line writes back columns 0 to 11 only: its
// total, and so the note's, keep the old amount until the note is read again; what is stored is
// right, since the save takes cost and quantity.
#include "goods/frmNotaIngreso.h"
#include "goods/frmNotaIngresoArticulo.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"
#include "shell/common/Common.h"

using namespace shell;

namespace mercaderia {

namespace {
constexpr int kColumnasDeLinea = 12;
}

void frmNotaIngreso::ConfigurarGrilla() {
    struct Columna {
        const char* encabezado;
        double ancho;
        GrillaDetalle::Alineacion alineacion;
    };
    constexpr auto g = GrillaDetalle::flexAlignGeneral;
    constexpr auto izq = GrillaDetalle::flexAlignLeftCenter;
    constexpr auto der = GrillaDetalle::flexAlignRightCenter;
    const Columna columnas[] = {{"", 0, g},
                                {"Nombre", 2790, izq},
                                {"Modelo", 1400, izq},
                                {"Color", 1400, izq},
                                {"Costo Unit.", 1200, der},
                                {"", 0, g},
                                {"", 0, g},
                                {"Cant.", 800, der},
                                {"", 0, g},
                                {"", 0, g},
                                {"", 0, g},
                                {"", 0, g},
                                {"Total", 1200, der}};
    fgDetalle->setCols(13);
    fgDetalle->setRows(2);
    for (int c = 0; c < 13; ++c) {
        fgDetalle->setTextMatrix(0, c, QString::fromUtf8(columnas[c].encabezado));
        fgDetalle->setColWidth(c, columnas[c].ancho);
        fgDetalle->setColAlignment(c, columnas[c].alineacion);
    }
    fgDetalle->FormatoEncabezado();
}

void frmNotaIngreso::AbrirLinea() {
    auto& dialogo = Common::Pantalla<frmNotaIngresoArticulo>();
    dialogo.Move(Left() + 300, Top() + 300);
    dialogo.ShowModal();
}

// The dialog starts blank and hands back the twelve cells; the thirteenth is cost times quantity.
void frmNotaIngreso::fgDetalle_Insertar() {
    Common::LineaNueva = true;
    Common::AtenuarTitulo(*this);
    AbrirLinea();
    if (!Common::Parametros.Vacio(1)) {
        QStringList celdas;
        for (int i = 1; i <= kColumnasDeLinea; ++i)
            celdas << Parametro(i);
        celdas << runtime::Format(runtime::Val(Parametro(5)) * runtime::Val(Parametro(8)),
                                  QStringLiteral("#0.00"));
        lineas_->AgregarFila(celdas);
    }
    Common::ResaltarTitulo(*this);
}

void frmNotaIngreso::fgDetalle_DblClick() {
    Common::Parametros.ReDim(kColumnasDeLinea);
    if (!Editando) return;
    const int fila = fgDetalle->Row();
    for (int c = 0; c < kColumnasDeLinea; ++c)
        Common::Parametros(c + 1) = fgDetalle->TextMatrix(fila, c);
    Common::LineaNueva = false;
    Common::AtenuarTitulo(*this);
    AbrirLinea();
    if (!Common::Parametros.Vacio(1))
        for (int c = 0; c < kColumnasDeLinea; ++c)
            fgDetalle->setTextMatrix(fila, c, Parametro(c + 1));
    Common::ResaltarTitulo(*this);
    ActualizarTotal();
}

} // namespace mercaderia
