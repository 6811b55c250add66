#pragma once

// What the fixtures of one screen's test programs (FacturaEnPantalla, ReciboEnPantalla,
// SolicitudEnPantalla) share around their screen: the clock stopped on the fixture's day, a database
// of the project's schema holding the fixture's rows, the screens' environment and the program
// started, all gone again with the fixture (the environment and the screens it closes first); then
// the screen opened from its menu item as the clerk opens it, and its bar.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "Gestos.h"
#include "ProgramaDePrueba.h"
#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "store/Recordset.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <memory>

template <class Pantalla> class EnPantalla {
public:
    EnPantalla(const EnPantalla&) = delete;
    EnPantalla& operator=(const EnPantalla&) = delete;

    BaseDePrueba& base() { return *base_; }
    EntornoDePantallas& entorno() { return *entorno_; }
    ProgramaDePrueba& programa() { return *programa_; }
    // One value read straight from the database file, as another workstation sees it.
    QString db(const QString& consulta) const { return base_->valor(consulta); }
    // One value read on the program's shared connection, what an open transaction wrote included.
    static QString enLaConexion(const QString& consulta) {
        store::Recordset rs;
        rs.Open(consulta, Common::DE().CN, store::adOpenStatic, store::adLockReadOnly);
        return rs.Eof() ? QString() : runtime::TextoDe(rs.Fields(0).Value());
    }

    // The menu item the first time, the screen made active; the screen standing open afterwards.
    Pantalla& pantalla() {
        auto& p = Common::Pantalla<Pantalla>();
        if (p.isVisible()) return p;
        auto& abierta = programa_->abrir<Pantalla>(menu_);
        activar(abierta);
        return abierta;
    }
    // A button of the bar by its caption; the screen made active again after it, unless it closed.
    void pulsar(const QString& caption) {
        auto& p = pantalla();
        pulsarBoton(p.cmdBoton, caption);
        if (!p.descargado() && p.isVisible()) activar(p); // back from whatever it opened
    }

protected:
    // The clock stopped on `hoy` at 9:30 (a test moves it with runtime::FijarReloj), and `filas`, the
    // statements of SQLite's own SQL that write the fixture's rows; the screen is the menu item `menu`.
    EnPantalla(const QDate& hoy, const QString& menu, const QString& filas)
        : menu_(menu) {
        reloj_ = std::make_unique<runtime::RelojFijo>(QDateTime(hoy, QTime(9, 30)));
        base_ = std::make_unique<BaseDePrueba>(true);
        base_->sqlite(filas);
        entorno_ = std::make_unique<EntornoDePantallas>();
        programa_ = std::make_unique<ProgramaDePrueba>();
    }
    ~EnPantalla() {
        entorno_.reset();
        programa_.reset();
        base_.reset();
        reloj_.reset();
    }

private:
    QString menu_;
    std::unique_ptr<runtime::RelojFijo> reloj_;
    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
    std::unique_ptr<ProgramaDePrueba> programa_;
};
