// The plan of payment: the total of the lines, less the discount, the down payment and the first
// payment, divided by the months. It works on the texts of the controls, each step reading with Val
// what the step before wrote rounded to two decimals. The discount and the down payment come from the
// row as "#,##0.00", which Val reads up to the comma: 1,500.00 enters the arithmetic as 1.
#include "credit/frmSolicitud.h"
#include "runtime/Conversion.h"
#include "runtime/Formato.h"

namespace credito {

namespace {

QString Cifra(double valor) {
    return runtime::Format(valor, QStringLiteral("#0.00"));
}

double ValDe(const QLabel* l) {
    return runtime::Val(l->text());
}

double ValDe(const shell::CajaTexto* c) {
    return runtime::Val(c->Text());
}

} // namespace

// The total: the sum of column 3 of every line (a blank row counts 0).
void frmSolicitud::SumarDetalle() {
    double suma = 0;
    for (int fila = 1; fila < fgDetalle->Rows(); ++fila)
        suma += runtime::Val(fgDetalle->TextMatrix(fila, 3));
    lblTotalPagar->setText(Cifra(suma));
}

// The balance to finance, subtracted in this order; nothing refuses a negative one.
void frmSolicitud::CalcularSaldo() {
    lblTotalCredito->setText(
        Cifra(ValDe(lblTotalPagar) - ValDe(txtEnganche) - ValDe(txtDescuento) - ValDe(txtPrimerPago)));
}

// The instalment; the last one isn't adjusted for the rounding.
void frmSolicitud::CalcularAbono() {
    lblAbonoMensual->setText(Cifra(ValDe(lblTotalCredito) / ValDe(txtMesesCredito)));
}

void frmSolicitud::PorcentajeDesdeMonto() {
    txtDescuentoP->setText(Cifra(ValDe(txtDescuento) / ValDe(lblTotalPagar) * 100));
}

void frmSolicitud::MontoDesdePorcentaje() {
    txtDescuento->setText(Cifra(ValDe(lblTotalPagar) * ValDe(txtDescuentoP) / 100));
}

// The two discount fields refresh the balance and leave the instalment as it was: on the way through
// the plan it follows at the down payment, the first payment or the months.
void frmSolicitud::txtDescuentoP_Validate() {
    txtDescuentoP->setText(Cifra(ValDe(txtDescuentoP)));
    MontoDesdePorcentaje();
    CalcularSaldo();
}

void frmSolicitud::txtDescuento_Validate() {
    txtDescuento->setText(Cifra(ValDe(txtDescuento)));
    if (ValDe(lblTotalPagar) <= 0)
        txtDescuentoP->setText(QStringLiteral("0.00"));
    else
        PorcentajeDesdeMonto();
    CalcularSaldo();
}

void frmSolicitud::txtEnganche_Validate() {
    txtEnganche->setText(Cifra(ValDe(txtEnganche)));
    CalcularSaldo();
    txtMesesCredito_Validate();
}

void frmSolicitud::txtPrimerPago_Validate() {
    txtPrimerPago->setText(Cifra(ValDe(txtPrimerPago)));
    CalcularSaldo();
    txtMesesCredito_Validate();
}

// Whole months only; with none the instalment keeps its last value.
void frmSolicitud::txtMesesCredito_Validate() {
    CalcularSaldo();
    if (ValDe(txtMesesCredito) <= 0) return;
    txtMesesCredito->setText(runtime::TextoDe(runtime::Int(ValDe(txtMesesCredito))));
    CalcularAbono();
}

// Whole days; no range is tested.
void frmSolicitud::txtDiaPago_Validate() {
    txtDiaPago->setText(runtime::TextoDe(runtime::Int(ValDe(txtDiaPago))));
}

// The plan of an application brought up: the percentage worked out again from the stored amount.
void frmSolicitud::MostrarPlan() {
    txtDescuentoP->setText(QStringLiteral("0.00"));
    lblAbonoMensual->setText(QStringLiteral("0.00"));
    SumarDetalle();
    if (ValDe(lblTotalPagar) != 0) PorcentajeDesdeMonto();
    CalcularSaldo();
    if (ValDe(txtMesesCredito) != 0) CalcularAbono();
}

} // namespace credito
