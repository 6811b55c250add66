#pragma once

#include "shell/controles/ArregloDeOpciones.h"
#include "shell/controles/CajaTexto.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"

#include <QCheckBox>
#include <QGroupBox>

namespace catalogos {

// Finds an article and changes it; articles are created only when goods come in. Each margin, cash
// and credit, is held as a percentage of cost or as an amount over it: the percentage rules when it is
// above 0. The bar has five buttons of its own: 0 "Buscar", 1 "Modificar", 2 "Imprimir" to browse,
// 3 "Guardar" and 4 "Cancelar" to edit, standing where 0 and 1 stand. No transaction, no handler.
class frmArticulo : public shell::PantallaRegistro {
    Q_OBJECT
public:
    frmArticulo();

    store::Adodc* adoArticulo;
    shell::CajaTexto* txtArticuloID;
    shell::CajaTexto* txtNombre;
    shell::CajaTexto* txtModelo;
    shell::CajaTexto* txtColor;
    shell::CajaTexto* txtCosto;
    QCheckBox* chkActivo;
    shell::ArregloDeOpciones* optContado;
    shell::ArregloDeOpciones* optCredito;
    shell::CajaTexto* txtContadoPorcentaje;
    shell::CajaTexto* txtContadoValor;
    shell::CajaTexto* txtCreditoPorcentaje;
    shell::CajaTexto* txtCreditoValor;
    QLabel* lblExistencia;
    QLabel* lblContadoPrecio;
    QLabel* lblCreditoPrecio;

    void optContado_Click(int Index);
    void optCredito_Click(int Index);

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void MostrarPrecios();
    void Buscar();
    QGroupBox* margen(const QString& titulo, double left, shell::ArregloDeOpciones*& opciones,
                      const QString& nombreOpcion, shell::CajaTexto*& porcentaje,
                      const QString& nombrePorcentaje, shell::CajaTexto*& valor, const QString& nombreValor);
};

} // namespace catalogos
