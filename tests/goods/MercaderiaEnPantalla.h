#pragma once

// What the goods-in and payable tests share: the store's rows before each test, the program started,
// and the clerk's gestures on a supplier document (the bar, "Proveedor >" answered in the pick list,
// the goods-in line dialog acted on), made of the shared gestures of Gestos.h.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "Gestos.h"
#include "ProgramaDePrueba.h"
#include "goods/DocumentoDeProveedor.h"
#include "goods/frmNotaIngresoArticulo.h"
#include "runtime/Fechas.h"

#include <functional>
#include <memory>

// The rows every test starts from:
//   suppliers  1 DISTRIBUIDORA CENTRAL, 2 ELECTRO MAYORISTA
//   article    1 REFRIGERADORA RT38 BLANCO, cost 400, cash 25 %, credit 40 %; 3 in stock
//   notes      15 (key 1): DISTRIBUIDORA, 01/03/2026, "Factura 15", 2 refrigerators at 400.00: 800.00
//              16 (key 2): ELECTRO, 02/03/2026, "Factura 16", 1 refrigerator at 100.00: 100.00
//   document   3 (key 1): DISTRIBUIDORA, pays 300.00 of note 15
class MercaderiaEnPantalla {
public:
    MercaderiaEnPantalla();

    BaseDePrueba& base() { return *base_; }
    EntornoDePantallas& entorno() { return *entorno_; }
    // One value read straight from the database file, as another workstation sees it.
    QString db(const QString& consulta) const { return base_->valor(consulta); }
    // An article's stock, as the article search gives it.
    QString existencia(const QString& nombre) const;

    // The screen the menu item opens, made the active window.
    template <class T> T& abrir(const QString& caption) {
        T& p = programa_->abrir<T>(caption);
        activar(p);
        return p;
    }
    // The bar's button of this caption, the screen made active again afterwards.
    void pulsar(mercaderia::DocumentoDeProveedor& p, const QString& caption);
    // "Buscar", picking the document whose row shows this cell.
    void buscar(mercaderia::DocumentoDeProveedor& p, const QString& celda);
    // "Proveedor >" with the supplier of this name picked in the list.
    void proveedor(mercaderia::DocumentoDeProveedor& p, const QString& nombre);

    // The next goods-in line dialog, made active and acted on; "&Aceptar" or "&Cancelar" pressed by
    // `accion` itself.
    void enLinea(std::function<void(mercaderia::frmNotaIngresoArticulo&)> accion);
    // A new article typed after "Nuevo": name, quantity, cost, then per margin group (cash, credit) the
    // option clicked ("-" none) and the figure typed in the field it opened. "&Aceptar"; when it is
    // refused, its message kept in `mensaje` and the dialog left by "&Cancelar".
    void articuloNuevo(const QStringList& tecleado, QString* mensaje = nullptr);
    // An existing article found with "Buscar" by its name, quantity and cost typed, accepted.
    void articuloExistente(const QString& nombre, const QString& cantidad, const QString& costo);
    // A key on fgDetalle's row `fila`.
    void tecla(mercaderia::DocumentoDeProveedor& p, Qt::Key k, int fila = 1);

private:
    // Gone in the reverse order: the screens and the driver first, the database and the clock last.
    std::unique_ptr<runtime::RelojFijo> reloj_;
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<ProgramaDePrueba> programa_;
    std::unique_ptr<EntornoDePantallas> entorno_;
};
