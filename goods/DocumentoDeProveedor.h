#pragma once

#include "shell/controles/CajaTexto.h"
#include "shell/controles/GrillaDetalle.h"
#include "shell/controles/SelectorFecha.h"
#include "shell/marco/LineasDeDetalle.h"
#include "shell/marco/PantallaRegistro.h"
#include "store/Adodc.h"
#include "store/Fallo.h"

#include <QLabel>
#include <QPushButton>
#include <functional>

namespace store {
class Recordset;
}

namespace mercaderia {

// The words and statements that tell one supplier document from the other: a goods-in note and a
// payable document say the same steps over their own table.
struct TextosDeDocumento {
    QString titulo;
    QString etiquetaNumero;     // "No. Factura:"
    QString etiquetaTotal;      // "Valor total de la nota de ingreso"
    QString nombreDatos;        // the data control: "adoIngreso"
    QString nombreNumero;       // the number's field: "txtNumeroIngreso"
    QString columnaClave;       // the row's key: "IngresoID"
    QString columnaNumero;      // the number's column: "NumeroIngreso"
    QString tabla;              // "NotaIngreso", for the number proposed
    QString consultaBusqueda;   // "Select * From vwBuscaNotaIngreso"
    QString tituloBusqueda;     // "Busca notas de ingreso de artículos"
    QString fuenteConProveedor; // the row joined to its supplier's name, up to "Where N.IngresoID"
    QString fuenteEditable;     // the row alone, updatable, up to "Where N.IngresoID"
    QString borrarLineas;       // "Delete From NotaIngresoDetalle Where IngresoID = "
    QString eliminarLineas;     // "Delete * From NotaIngresoDetalle Where IngresoID = "
    QString eliminarDocumento;  // "Delete * From NotaIngreso Where IngresoID = "
    QString preguntaEliminar;   // "Desea eliminar esta nota de ingreso"
    QString faltaNumero;        // "Debe indicar el numero de la nota de ingreso."
    QString faltanLineas;       // "Debe especificar la lista de artículos que ingresan."
};

// What a goods-in note (frmNotaIngreso) and a payable document (frmDocumentos) share: a numbered
// document of one supplier, with a date, a reference text and lines in fgDetalle, edited inside a
// transaction of the shared connection from "Agregar" or "Modificar" to "Guardar" or "Cancelar".
//
//   "Buscar"     the search of the documents; the one picked is read joined to its supplier's name
//   "Agregar"    the row alone (updatable), AddNew, today's date, the next number, no supplier
//   "Modificar"  the row read again alone, by the key read under the column IngresoID
//   "Eliminar"   asked first; the lines and the row in a transaction of their own
//   "Guardar"    number, supplier, description and a first line checked in that order, then the save
//   "Cancelar"   all undone; a row still held is read again, by IngresoID, joined, and shown
//
// Both screens read the key of their row under the goods-in note's column name, IngresoID: the payable
// document's row has no such column, so there "Modificar", and "Cancelar" after a save that failed
// past its Update, stop the program at that read, before anything more is written. A saved payable
// document can't be changed.
//
// The bar has no failure handler: only the save and the deletion tell their failures. A screen
// says only what differs: its words (TextosDeDocumento), its grid's columns, how a row of its detail
// view becomes a line, how a line is stored, how a refused deletion is told, and its line keys.
class DocumentoDeProveedor : public shell::PantallaRegistro {
    Q_OBJECT
public:
    bool Editando = false;
    long ProveedorID = 0;
    // The key of the document in hand, read for "Modificar" and "Cancelar".
    long IngresoID = 0;

    store::Adodc* datos;
    shell::CajaTexto* txtNumero;
    shell::SelectorFecha* dpFecha;
    QPushButton* cmdProveedor;
    QLabel* lblNombre;
    shell::CajaTexto* txtDescripcion;
    shell::GrillaDetalle* fgDetalle;
    QLabel* lblTotal;

    // "Proveedor >": the pick list of suppliers. Changing the supplier touches nothing else.
    void cmdProveedor_Click();
    // The sum of the lines' amounts (the column `columnaTotal`) in lblTotal, "#0.00".
    void ActualizarTotal();

protected:
    DocumentoDeProveedor(const TextosDeDocumento& textos, int columnaTotal);

    void Form_Load() override;
    void cmdBoton_Click(int Index) override;

    // The grid's columns, headings, widths and alignments.
    virtual void ConfigurarGrilla() = 0;
    // The screen's own names of the shared steps: MostrarIngreso, GuardarIngreso, EliminarIngreso...
    virtual void Mostrar() = 0;
    virtual bool GuardarDocumento() = 0;
    virtual void EliminarDocumento() = 0;

    // The shared steps those are made of.
    // The document shown: the grid cleared, the date, supplier and number's Tag from the row, then one
    // line per row of `consultaLineas` and the key, as `linea` composes it (adding to the total), and
    // the total.
    void MostrarLineas(const QString& consultaLineas,
                       const std::function<QStringList(store::Recordset&, double& total)>& linea);
    // The row with its date and supplier, its lines deleted and each grid row stored by `linea` with
    // the row's key, the commit. A failure is told and leaves the transaction open: false.
    bool GuardarLineas(const std::function<void(int fila, const QString& clave)>& linea);
    // The lines and the row deleted in their own transaction, then the screen emptied. A failure rolls
    // it back and goes to `avisar`.
    void EliminarConLineas(const std::function<void(const store::Fallo&)>& avisar);

    // Whether the data control holds a row (open, and not both at its start and its end).
    bool HayFila();
    // Parametros(i) as text; "" where the array stops short of i.
    static QString Parametro(int i);

    const TextosDeDocumento textos_;
    shell::LineasDeDetalle* lineas_ = nullptr;

private:
    void Disenar();
    void Buscar();
    void Agregar();
    void Modificar();
    void Guardar();
    void Cancelar();
    void TerminarEdicion();

    const int columnaTotal_;
};

} // namespace mercaderia
