#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/marco/Marco.h"
#include "store/Adodc.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace catalogos {

// Finds an article and changes it; articles are created only when goods come in. Each margin, cash
// and credit, is held as a percentage of cost or as an amount over it: the percentage rules when it is
// above 0. The bar has five buttons of its own: 0 "Buscar", 1 "Modificar", 2 "Imprimir" to browse,
// 3 "Guardar" and 4 "Cancelar" to edit, standing where 0 and 1 stand. No transaction, no handler.
class frmArticulo : public shell::Marco {
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
    QRadioButton* optContado[2];
    QRadioButton* optCredito[2];
    shell::CajaTexto* txtContadoPorcentaje;
    shell::CajaTexto* txtContadoValor;
    shell::CajaTexto* txtCreditoPorcentaje;
    shell::CajaTexto* txtCreditoValor;
    QLabel* lblExistencia;
    QLabel* lblContadoPrecio;
    QLabel* lblCreditoPrecio;

    bool Agregando = false;

    void optContado_Click(int Index);
    void optCredito_Click(int Index);

protected:
    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

private:
    void MostrarPrecios();
    void Buscar();
    void ModoEdicion(const QString& estado);
    void ModoConsulta();
    QGroupBox* margen(const QString& titulo, double left, QRadioButton* (&opciones)[2],
                      const QString& nombreOpcion, shell::CajaTexto*& porcentaje,
                      const QString& nombrePorcentaje, shell::CajaTexto*& valor, const QString& nombreValor);
};

} // namespace catalogos
