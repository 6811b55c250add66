// The pick list as a caller opens it and a clerk uses it: a row picked by a double click or by
// "&Aceptar", "Cancelar" and the close box leaving nothing picked, and an empty list that only lets
// the clerk out.
#include "BaseDePrueba.h"
#include "EntornoDePantallas.h"
#include "shell/busqueda/frmListado.h"
#include "shell/common/Common.h"

#include <QtTest>

using namespace shell;

namespace {

const QString kBancos =
    QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Order By Nombre");
const QString kNinguno =
    QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Where BancoID < 0");

// In the order of kBancos: BAM (3), Banco Industrial (2), Banrural (1).
const char* const kFilas = R"(
INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES
    (1, 'Banrural', 'Zona 1'), (2, 'Banco Industrial', NULL), (3, 'BAM', 'Zona 4');
)";

QPushButton* boton(QWidget* f, int i) {
    return control<QPushButton>(f, QStringLiteral("cmdBoton(%1)").arg(i));
}

QPoint centroDeFila(const frmListado& f, int fila) {
    return f.DataGrid->visualRect(f.DataGrid->model()->index(fila, 1)).center();
}

void clicEnFila(frmListado& f, int fila) {
    QTest::mouseClick(f.DataGrid->viewport(), Qt::LeftButton, {}, centroDeFila(f, fila));
}

} // namespace

class TstListado : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void muestraCodigoYDescripcion();
    void elegirUnaFila_data();
    void elegirUnaFila();
    void unClicSoloMueveLaFilaActual();
    void listaVacia_data();
    void listaVacia();
    void cargarListaBorraLosResultados();
    void enterLlevaAAceptar();
    void descripcionNulaEsFatal();

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
        QVERIFY(QTest::qWaitForWindowExposed(&p));
        accion(static_cast<frmListado&>(p));
        if (!p.descargado())
            QTest::mouseClick(control<QPushButton>(&p, QStringLiteral("cmdClose")), Qt::LeftButton);
    });
    f.ShowModal();
    QVERIFY(f.descargado());
}

// Two columns bound by name, whatever else the query brings.
void TstListado::muestraCodigoYDescripcion() {
    QStringList encabezados, primera;
    abrir(QStringLiteral(
              "Select BancoID as Codigo, Nombre as Descripcion, Direccion From Banco Order By Nombre"),
          [&](frmListado& f) {
              const QAbstractItemModel* m = f.DataGrid->model();
              for (int c = 0; c < m->columnCount(); ++c) {
                  encabezados << m->headerData(c, Qt::Horizontal).toString();
                  primera << m->index(0, c).data().toString();
              }
              QCOMPARE(m->rowCount(), 3);
              // Unset alignment is the general one: the code, a number, to the right.
              const auto alineacion = [m](int c) {
                  return m->index(0, c).data(Qt::TextAlignmentRole).value<Qt::Alignment>() &
                         Qt::AlignHorizontal_Mask;
              };
              QCOMPARE(alineacion(0), Qt::Alignment(Qt::AlignRight));
              QCOMPARE(alineacion(1), Qt::Alignment(Qt::AlignLeft));
              QCOMPARE(boton(&f, 0)->text(), QStringLiteral("&Aceptar"));
              QCOMPARE(boton(&f, 1)->text(), QStringLiteral("Cancelar"));
              QVERIFY(!f.findChild<QWidget*>(QStringLiteral("lblEstado")));
          });
    QCOMPARE(encabezados, (QStringList{"Codigo", "Descripcion"}));
    QCOMPARE(primera, (QStringList{"3", "BAM"}));
    QCOMPARE(entorno_->titulosModales, QStringList{QStringLiteral("Listado de bancos del sistema")});
}

void TstListado::elegirUnaFila_data() {
    QTest::addColumn<int>("fila"); // -1: the row the list opened on
    QTest::addColumn<bool>("dobleClic");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("texto");

    QTest::newRow("doble clic") << 1 << true << 2 << "Banco Industrial";
    QTest::newRow("clic y Aceptar") << 2 << false << 1 << "Banrural";
    QTest::newRow("Aceptar sin moverse: la primera") << -1 << false << 3 << "BAM";
}

void TstListado::elegirUnaFila() {
    QFETCH(int, fila);
    QFETCH(bool, dobleClic);
    QFETCH(int, id);
    QFETCH(QString, texto);

    abrir(kBancos, [&](frmListado& f) {
        if (dobleClic) {
            QTest::mouseDClick(f.DataGrid->viewport(), Qt::LeftButton, {}, centroDeFila(f, fila));
            return;
        }
        if (fila >= 0) clicEnFila(f, fila);
        QTest::mouseClick(boton(&f, 0), Qt::LeftButton);
        QVERIFY(f.descargado());
    });
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(Common::IDSeleccionado, long(id));
    QCOMPARE(Common::TextoSeleccionado, texto);
}

// The pick is read when "&Aceptar" is pressed; until then a click only moves the current row, and
// "Cancelar" leaves nothing picked.
void TstListado::unClicSoloMueveLaFilaActual() {
    abrir(kBancos, [&](frmListado& f) {
        clicEnFila(f, 2);
        QVERIFY(!f.descargado());
        QCOMPARE(f.Adodc->Recordset()->AbsolutePosition(), 3);
        QCOMPARE(Common::IDSeleccionado, 0L);
        clicEnFila(f, 1);
        QCOMPARE(f.Adodc->Recordset()->AbsolutePosition(), 2);
        QCOMPARE(f.DataGrid->currentIndex().row(), 1);
        QTest::mouseClick(boton(&f, 1), Qt::LeftButton);
        QVERIFY(f.descargado());
    });
    QCOMPARE(Common::IDSeleccionado, 0L);
    QCOMPARE(Common::TextoSeleccionado, QString());
}

void TstListado::listaVacia_data() {
    QTest::addColumn<bool>("conCancelar"); // else the close box
    QTest::newRow("Cancelar") << true;
    QTest::newRow("caja de cierre") << false;
}

// On an empty list "&Aceptar" and a double click do nothing; only "Cancelar" or the close box leave.
void TstListado::listaVacia() {
    QFETCH(bool, conCancelar);
    abrir(kNinguno, [&](frmListado& f) {
        QCOMPARE(f.DataGrid->model()->rowCount(), 0);
        QTest::mouseClick(boton(&f, 0), Qt::LeftButton);
        QVERIFY(!f.descargado());
        QTest::mouseDClick(f.DataGrid->viewport(), Qt::LeftButton, {},
                           f.DataGrid->viewport()->rect().center());
        QVERIFY(!f.descargado());
        QTest::mouseClick(conCancelar ? boton(&f, 1) : f.cmdClose, Qt::LeftButton);
        QVERIFY(f.descargado());
    });
    QVERIFY(entorno_->fallos.isEmpty());
    QCOMPARE(Common::IDSeleccionado, 0L);
    QCOMPARE(Common::TextoSeleccionado, QString());
}

void TstListado::cargarListaBorraLosResultados() {
    auto& f = Common::Pantalla<frmListado>();
    Common::IDSeleccionado = 7;
    Common::TextoSeleccionado = QStringLiteral("Salir");
    f.CargarLista(kBancos);
    QCOMPARE(Common::IDSeleccionado, 0L);
    QCOMPARE(Common::TextoSeleccionado, QString());
    QCOMPARE(f.Adodc->RecordSource(), kBancos);
    QCOMPARE(f.DataGrid->model()->rowCount(), 3);

    // Loaded again with another query, the list shows only the new rows.
    f.CargarLista(
        QStringLiteral("Select BancoID as Codigo, Nombre as Descripcion From Banco Where BancoID = 1"));
    QCOMPARE(f.DataGrid->model()->rowCount(), 1);
    QCOMPARE(f.DataGrid->model()->index(0, 1).data().toString(), QStringLiteral("Banrural"));
    f.Unload();
}

void TstListado::enterLlevaAAceptar() {
    abrir(kBancos, [&](frmListado& f) {
        QVERIFY(QTest::qWaitForWindowActive(&f));
        clicEnFila(f, 1);
        QCOMPARE(QApplication::focusWidget(), f.DataGrid);
        QTest::keyClick(f.DataGrid, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), boton(&f, 0));
        QVERIFY(!f.descargado());
        QTest::keyClick(boton(&f, 0), Qt::Key_Return);
    });
    QCOMPARE(Common::IDSeleccionado, 2L);
    QCOMPARE(Common::TextoSeleccionado, QStringLiteral("Banco Industrial"));
}

// Nothing catches a Null description: picking it ends the program.
void TstListado::descripcionNulaEsFatal() {
    abrir(QStringLiteral("Select BancoID as Codigo, Direccion as Descripcion From Banco Order By 1"),
          [&](frmListado& f) {
              clicEnFila(f, 1);
              QTest::mouseClick(boton(&f, 0), Qt::LeftButton);
              QVERIFY(!f.descargado());
          });
    QCOMPARE(entorno_->fallos.size(), 1);
}

QTEST_MAIN(TstListado)
#include "tst_listado.moc"
