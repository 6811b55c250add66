#pragma once

#include "shell/controles/ArregloDeOpciones.h"
#include "shell/controles/CajaTexto.h"
#include "shell/marco/DialogoDeLinea.h"

#include <QGroupBox>
#include <QLabel>
#include <tuple>

namespace mercaderia {

// One line of a goods-in note: an existing article found with "Buscar", or a new one described after
// "Nuevo", with the quantity received and its unit cost. It stores nothing and changes no article: the
// line goes back to frmNotaIngreso in Parametros, twelve elements mirroring the grid's columns 0 to 11
// (1 key or "*", 2-4 name, model, colour, 5 cost, 6-7 cash margin, 8 quantity, 9-10 carried,
// 11-12 credit margin).
//
// LineaNueva says how it opens: blank, or on the line in Parametros with the quantity back at "0.00",
// so that every change of a line types its quantity again. Parametros with fewer than two elements at
// "&Aceptar" makes the line a new article: at least one margin must be above 0, and each group keeps
// its percentage only when its "Porcentaje" option was clicked (the other field of the group becomes
// "0.00"); the dialog never selects an option itself. For an existing line, name, model and colour
// stay as they came whatever was typed. The price labels keep their "0.00".
class frmNotaIngresoArticulo : public shell::DialogoDeLinea {
    Q_OBJECT
public:
    frmNotaIngresoArticulo();

    QFrame* fraAction;
    QGroupBox* fraDatos;
    QGroupBox* fraGanancia;
    QGroupBox* frame0; // frame(0): the cash margin
    QGroupBox* frame1; // frame(1): the credit margin
    shell::CajaTexto* txtNombre;
    shell::CajaTexto* txtModelo;
    shell::CajaTexto* txtColor;
    shell::CajaTexto* txtCantidad;
    shell::CajaTexto* txtCosto;
    shell::ArregloDeOpciones* optContado;
    shell::ArregloDeOpciones* optCredito;
    shell::CajaTexto* txtContadoPorcentaje;
    shell::CajaTexto* txtContadoValor;
    shell::CajaTexto* txtCreditoPorcentaje;
    shell::CajaTexto* txtCreditoValor;
    QLabel* lblContadoPrecio;
    QLabel* lblCreditoPrecio;

    void optContado_Click(int Index);
    void optCredito_Click(int Index);

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void MostrarLinea();
    void Nuevo();
    void Buscar();
    void Aceptar();
    void VaciarCampos();
    QGroupBox* margen(int indice, const QString& titulo, double left, shell::ArregloDeOpciones*& opciones,
                      const QString& nombre, shell::CajaTexto*& porcentaje, shell::CajaTexto*& valor,
                      QLabel*& precio, const QString& rotuloPrecio);
    QList<shell::CajaTexto*> cajas_;
};

} // namespace mercaderia
