// The pick list as a caller opens it and a clerk uses it: a row picked by a double click, by
// "&Aceptar" or by Enter, "Cancelar" and the close box leaving nothing picked, and an empty list that
// only lets the clerk out.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"

#include <QtTest>

using namespace shell;

namespace {

const QString kBancos =
    QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Order By Nombre");

// In the order of kBancos: BAM (3), Banco Industrial (2), Banrural (1).
const char* const kFilas = R"(
INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES
    (1, 'Banrural', 'Zona 1'), (2, 'Banco Industrial', NULL), (3, 'BAM', 'Zona 4');
)";

QPushButton* boton(QWidget* f, int i) {
    return control<QPushButton>(f, QStringLiteral("cmdBoton(%1)").arg(i));
}

} // namespace

class TstListado : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void muestraCodigoYDescripcion();
    void elegir_data();
    void elegir();
    void cargarListaBorraLosResultados();

private:
    // Opens the list as frmBanco does and runs `accion` while it is shown; a screen the action left
    // open is closed with its close box.
    void abrir(const QString& consulta, const std::function<void(frmListado&)>& accion);

    std::unique_ptr<BaseDePrueba> base_;
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstListado::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QString::fromUtf8(kFilas));
    entorno_ = std::make_unique<EntornoDePantallas>();
    Common::DE().CN.Open();
}

void TstListado::cleanup() {
    entorno_.reset();
    if (Common::DE().CN.State() == store::adStateOpen) Common::DE().CN.Close();
    base_.reset();
}

void TstListado::abrir(const QString& consulta, const std::function<void(frmListado&)>& accion) {
    auto& f = Common::Pantalla<frmListado>();
    f.Move(300, 300);
    f.CargarLista(consulta);
    f.lblTitulo->setText(QStringLiteral(" Listado de bancos del sistema"));
    entorno_->alMostrarModal([&](Formulario& p) {
        QVERIFY(QTest::qWaitForWindowActive(&p));
        accion(static_cast<frmListado&>(p));
        if (!p.descargado())
            QTest::mouseClick(control<QPushButton>(&p, QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    f.ShowModal();
    QVERIFY(f.descargado());
}

// Two columns bound by name, whatever else the query brings; the code, a number, to the right.
void TstListado::muestraCodigoYDescripcion() {
    QStringList encabezados, primera;
    abrir(QStringLiteral(
              "Select BancoID as Codigo, Nombre as Descripcion, Direccion From Banco Order By Nombre"),
          [&](frmListado& f) {
              const QAbstractItemModel* m = f.DataGrid->model();
              QCOMPARE(m->rowCount(), 3);
              for (int c = 0; c < m->columnCount(); ++c) {
                  encabezados << m->headerData(c, Qt::Horizontal).toString();
                  primera << m->index(0, c).data().toString();
                  const auto alineacion = m->index(0, c).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
                  QCOMPARE(alineacion & Qt::AlignHorizontal_Mask, c == 0 ? Qt::AlignRight : Qt::AlignLeft);
              }
              QCOMPARE(boton(&f, 0)->text(), QStringLiteral("&Aceptar"));
              QCOMPARE(boton(&f, 1)->text(), QStringLiteral("Cancelar"));
          });
    QCOMPARE(encabezados, (QStringList{"Codigo", "Descripcion"}));
    QCOMPARE(primera, (QStringList{"3", "BAM"}));
    QCOMPARE(entorno_->titulosModales, QStringList{QStringLiteral("Listado de bancos del sistema")});
}

void TstListado::elegir_data() {
    QTest::addColumn<QString>("consulta");
    QTest::addColumn<QString>("gestos");
    QTest::addColumn<int>("id"); // -1: the program ends, nothing to read
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("fallos");
    const QString ninguno =
        QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Where BancoID < 0");
    const QString sinNombre =
        QStringLiteral("Select BancoID as Codigo, Direccion as Descripcion From Banco Order By 1");
    const auto fila = [](const char* nombre, const QString& consulta, const char* gestos, int id,
                         const char* texto, int fallos = 0) {
        QTest::newRow(nombre) << consulta << QString(gestos) << id << QString(texto) << fallos;
    };
    fila("doble clic", kBancos, "doble1", 2, "Banco Industrial");
    fila("clic y Aceptar", kBancos, "clic2 aceptar", 1, "Banrural");
    fila("Aceptar sin moverse: la primera", kBancos, "aceptar", 3, "BAM");
    fila("Enter en la lista lleva a Aceptar; Enter en él", kBancos, "clic1 enter enter", 2,
         "Banco Industrial");
    // Until "&Aceptar" a click only moves the current row.
    fila("clics y Cancelar", kBancos, "clic2 clic1 cancelar", 0, "");
    // On an empty list "&Aceptar" and a double click do nothing; only "Cancelar" or the close box leave.
    fila("lista vacía, Cancelar", ninguno, "aceptar doble0 cancelar", 0, "");
    fila("lista vacía, caja de cierre", ninguno, "aceptar doble0 cierre", 0, "");
    // Nothing catches a Null description: picking it ends the program.
    fila("descripción nula", sinNombre, "clic1 aceptar quedarse", -1, "", 1);
}

// The list stays until the last gesture, which leaves with the pick.
void TstListado::elegir() {
    entorno_->esperaFallos(); // checked below
    QFETCH(QString, consulta);
    QFETCH(QString, gestos);
    QFETCH(int, id);
    QFETCH(QString, texto);
    QFETCH(int, fallos);
    abrir(consulta, [&](frmListado& f) {
        const QStringList pasos = gestos.split(u' ');
        for (const QString& g : pasos) {
            QVERIFY2(!f.descargado(), qPrintable(g));
            const QRect celda = f.DataGrid->visualRect(f.DataGrid->model()->index(g.back().digitValue(), 1));
            const QPoint fila = celda.isValid() ? celda.center() : f.DataGrid->viewport()->rect().center();
            if (g.startsWith("clic")) QTest::mouseClick(f.DataGrid->viewport(), Qt::LeftButton, {}, fila);
            if (g.startsWith("doble")) QTest::mouseDClick(f.DataGrid->viewport(), Qt::LeftButton, {}, fila);
            if (g == "enter") QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            if (g == "aceptar") QTest::mouseClick(boton(&f, 0), Qt::LeftButton);
            if (g == "cancelar") QTest::mouseClick(boton(&f, 1), Qt::LeftButton);
            if (g == "cierre") QTest::mouseClick(f.cmdClose, Qt::LeftButton);
            if (g == "quedarse") return;
        }
        QVERIFY(f.descargado());
    });
    QCOMPARE(entorno_->fallos.size(), fallos);
    if (id < 0) return;
    QCOMPARE(Common::IDSeleccionado, long(id));
    QCOMPARE(Common::TextoSeleccionado, texto);
}

void TstListado::cargarListaBorraLosResultados() {
    auto& f = Common::Pantalla<frmListado>();
    Common::IDSeleccionado = 7;
    Common::TextoSeleccionado = QStringLiteral("Salir");
    f.CargarLista(kBancos);
    QCOMPARE(Common::IDSeleccionado, 0L);
    QCOMPARE(Common::TextoSeleccionado, QString());
    QCOMPARE(f.DataGrid->model()->rowCount(), 3);

    // Loaded again with another query, the list shows only the new rows.
    f.CargarLista(
        QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Where BancoID = 1"));
    QCOMPARE(f.DataGrid->model()->rowCount(), 1);
    QCOMPARE(f.DataGrid->model()->index(0, 1).data().toString(), QStringLiteral("Banrural"));
    f.Unload();
}

QTEST_MAIN(TstListado)
#include "tst_listado.moc"
