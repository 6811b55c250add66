#include "shell/principal/frmMain.h"

#include "shell/common/Common.h"
#include "shell/common/Twips.h"
#include "shell/marco/Iconos.h"
#include "shell/principal/frmSplash.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QToolButton>

namespace shell {

namespace {

struct Entrada {
    const char* caption;
    const char* nombre; // empty: a placeholder with no handler
    const char* descripcion;
};

struct Menu {
    const char* caption;
    const char* nombre;
    QList<Entrada> entradas;
};

const QList<Menu> kMenus = {
    {"Catalogos",
     "mnuCatalogos",
     {{"Clientes", "Clientes", ""},
      {"Fiadores", "Fiadores", ""},
      {"Proveedores", "Proveedores", ""},
      {"Bancos", "Bancos", ""},
      {"Artículos", "Articulos", ""}}},
    {"Movimientos",
     "Movimientos",
     {{"Créditos", "Creditos", ""},
      {"Recibos", "Recibos", ""},
      {"Facturas", "Facturas", ""},
      {"Pagos", "Pagos", "Pagos a proveedores"}}},
    {"Mercaderías",
     "",
     {{"Ingresos", "Ingresos", "Ingresos de mercadería"}, {"Envíos", "Envios", "Envios de mercadería"}}},
    {"Reportes", "", {{"Reporte1", "", ""}, {"Reporte2", "", ""}}},
    {"Opciones", "", {{"Opcion 1", "", ""}, {"Opcion 2", "", ""}}},
    {"Ayuda", "", {{"Acerca de ...", "Acerca de ...", ""}, {"Salida", "Salida", ""}}},
};

struct BotonBarra {
    const char* caption;
    const char* clave;
    const char* descripcion;
};

const BotonBarra kBotones[] = {
    {"Creditos", "Creditos", "Solicitudes de crédito"},
    {"Recibos", "Recibos", "Recibos"},
    {"Facturas", "Facturas", "Facturas"},
    {"Ingresos", "Ingresos", "Ingresos de mercadería"},
    {"Envíos", "Envios", "Envios"},
};

} // namespace

frmMain::frmMain() {
    setObjectName(QStringLiteral("frmMain"));
    Shape = new QFrame(this);
    Shape->setObjectName(QStringLiteral("Shape"));
    Shape->setFrameShape(QFrame::Box);
    Shape->setLineWidth(2);
    colocar(Shape, 0, 0, 6015, 1335);

    xMenu = new QMenuBar(this);
    xMenu->setObjectName(QStringLiteral("xMenu"));
    xMenu->setNativeMenuBar(false);
    xMenu->setStyleSheet(QStringLiteral(
        "QMenuBar::item { padding: 2px 4px; } QMenuBar { spacing: 0px; }")); // six entries in the strip
    colocar(xMenu, 60, 60, 5895, 330);

    xToolbar = new QToolBar(this);
    xToolbar->setObjectName(QStringLiteral("xToolbar"));
    xToolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    xToolbar->setIconSize(QSize(24, 24));
    xToolbar->setMovable(false);
    colocar(xToolbar, 60, 405, 4000, 870);

    construirMenu();
    construirBarra();
}

void frmMain::construirMenu() {
    for (const Menu& m : kMenus) {
        QMenu* lista = xMenu->addMenu(QString::fromUtf8(m.caption));
        lista->setObjectName(QString::fromUtf8(m.nombre));
        for (const Entrada& e : m.entradas) {
            QAction* item = lista->addAction(QString::fromUtf8(e.caption));
            const QString nombre = QString::fromUtf8(e.nombre);
            item->setObjectName(nombre);
            item->setStatusTip(QString::fromUtf8(e.descripcion));
            item->setIcon(Iconos::para(nombre));
            if (nombre.isEmpty()) continue; // placeholders stay in the menu with no handler
            connect(item, &QAction::triggered, this,
                    [this, nombre] { Common::Manejar([&] { xMenu_Click(nombre); }); });
        }
    }
}

void frmMain::construirBarra() {
    for (const BotonBarra& b : kBotones) {
        const QString clave = QString::fromUtf8(b.clave);
        QAction* boton = xToolbar->addAction(Iconos::para(clave), QString::fromUtf8(b.caption));
        boton->setObjectName(clave);
        boton->setToolTip(QString::fromUtf8(b.descripcion));
        boton->setStatusTip(QString::fromUtf8(b.descripcion));
        connect(boton, &QAction::triggered, this,
                [this, clave] { Common::Manejar([&] { xToolbar_ButtonClick(clave); }); });
    }
}

void frmMain::Form_Load() {
    xToolbar->resize(xMenu->width(), xToolbar->height());
    Shape->move(px(20), Shape->y());
    Shape->resize(px(anchoTw(Shape) - 40), Shape->height());
    resize(px(anchoTw(Shape) + 60), px(altoTw(Shape) + 40));
    const double pantalla =
        QGuiApplication::primaryScreen() ? twips(QGuiApplication::primaryScreen()->geometry().width()) : 0;
    Move(pantalla - Width() - 1000, 0);
    try {
        Common::DE().CN.Open();
    } catch (const store::Fallo& fallo) {
        // The program ends all the same; the error box also tells how the store's database is set up.
        throw store::Fallo(fallo.numero(),
                           fallo.descripcion() +
                               QStringLiteral("\n\nLa base de datos de la tienda se crea y se registra como "
                                              "DSNBrenal con: cuentacorriente-db init"));
    }
}

// The program ends only by "Salida" or "Cerrar el sistema": a close from the window manager (Alt+F4,
// a desktop's close) would unload the main window and leave an invisible process holding the
// connection and any open transaction, so it is ignored.
void frmMain::closeEvent(QCloseEvent* evento) {
    evento->ignore();
}

void frmMain::xMenu_Click(const QString& nombre) {
    if (nombre == QLatin1String("Clientes")) {
        Common::ClienteAbrir = 0;
        mostrar(QStringLiteral("frmCliente"));
    } else if (nombre == QLatin1String("Fiadores")) {
        mostrar(QStringLiteral("frmFiador"));
    } else if (nombre == QLatin1String("Proveedores")) {
        mostrar(QStringLiteral("frmProveedor"));
    } else if (nombre == QLatin1String("Bancos")) {
        mostrar(QStringLiteral("frmBanco"));
    } else if (nombre == QLatin1String("Articulos")) {
        mostrar(QStringLiteral("frmArticulo"));
    } else if (nombre == QLatin1String("Creditos")) {
        mostrar(QStringLiteral("frmSolicitud"));
    } else if (nombre == QLatin1String("Recibos")) {
        mostrar(QStringLiteral("frmRecibo"));
    } else if (nombre == QLatin1String("Facturas")) {
        mostrar(QStringLiteral("frmFactura"));
    } else if (nombre == QLatin1String("Pagos")) {
        mostrar(QStringLiteral("frmDocumentos"));
    } else if (nombre == QLatin1String("Envios")) {
        mostrar(QStringLiteral("frmNotaEnvio"));
    } else if (nombre == QLatin1String("Ingresos")) {
        mostrar(QStringLiteral("frmNotaIngreso"));
    } else if (nombre == QLatin1String("Acerca de ...")) {
        Common::TextoSeleccionado = QStringLiteral("Salir");
        Common::Pantalla<frmSplash>().ShowModal();
    } else if (nombre == QLatin1String("Salida")) {
        Common::Terminar();
    }
}

void frmMain::xToolbar_ButtonClick(const QString& clave) {
    if (clave == QLatin1String("Creditos"))
        mostrar(QStringLiteral("frmSolicitud"));
    else if (clave == QLatin1String("Recibos"))
        mostrar(QStringLiteral("frmRecibo"));
    else if (clave == QLatin1String("Facturas"))
        mostrar(QStringLiteral("frmFactura"));
    else if (clave == QLatin1String("Pagos"))
        mostrar(QStringLiteral("frmDocumentos"));
    else if (clave == QLatin1String("Envios"))
        mostrar(QStringLiteral("frmNotaEnvio"));
    else if (clave == QLatin1String("Ingresos"))
        mostrar(QStringLiteral("frmNotaIngreso"));
}

void frmMain::registrarPantalla(const QString& nombre, std::function<void()> mostrarla) {
    pantallas().insert(nombre, std::move(mostrarla));
}

void frmMain::mostrar(const QString& pantalla) {
    const auto it = pantallas().constFind(pantalla);
    if (it != pantallas().cend()) (*it)();
}

QHash<QString, std::function<void()>>& frmMain::pantallas() {
    static QHash<QString, std::function<void()>> registradas;
    return registradas;
}

} // namespace shell
