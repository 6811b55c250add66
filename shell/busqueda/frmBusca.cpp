#include "shell/busqueda/frmBusca.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Texto.h"
#include "shell/common/Common.h"
#include "shell/common/Twips.h"

#include <QHeaderView>

namespace shell {

namespace {

constexpr double kAncho = 9000;
constexpr double kAlto = 5690;

// The text between the first and the second underscore of a column name: "str", "dat", "int"...
QString tipoDeColumna(const QString& columna) {
    const int p1 = runtime::InStr(columna, QStringLiteral("_"));
    const int p2 = p1 > 0 ? runtime::InStr(p1 + 1, columna, QStringLiteral("_")) : 0;
    return p2 > p1 ? runtime::Mid(columna, p1 + 1, p2 - p1 - 1) : QString();
}

Qt::Alignment alineacionDeTipo(const QString& tipo) {
    if (tipo == QLatin1String("str")) return Qt::AlignLeft;
    if (tipo == QLatin1String("dat")) return Qt::AlignHCenter;
    return Qt::AlignRight;
}

} // namespace

frmBusca::frmBusca()
    : Marco(QStringLiteral("Búsqueda"), kAncho, kAlto) {
    setObjectName(QStringLiteral("frmBusca"));
    setKeyPreview(true);
    // This screen has neither a working frame nor a mode word.
    delete fraMain;
    fraMain = nullptr;
    delete lblEstado;
    lblEstado = nullptr;

    ado = new store::Adodc(this);
    ado->setObjectName(QStringLiteral("ado"));
    ado->setRecordSource(QStringLiteral("Select EstadoCivilID From EstadoCivil Where EstadoCivilID<0 "));

    dg = new RejillaDeDatos(this);
    dg->setObjectName(QStringLiteral("dg"));
    colocar(dg, 120, 840, kAncho - 300, 4095);
    dg->setDataSource(ado);
    connect(dg, &RejillaDeDatos::DblClick, this, [this] { Common::Manejar([this] { dg_DblClick(); }); });

    auto* forma = new QFrame(this);
    forma->setObjectName(QStringLiteral("shpBox(0)"));
    forma->setFrameStyle(QFrame::Box | QFrame::Plain);
    forma->setAttribute(Qt::WA_TransparentForMouseEvents);
    colocar(forma, 120, 480, 1200, 375);
    forma->hide();
    shpBox << forma;

    auto* caja = new QLineEdit(this);
    caja->setObjectName(QStringLiteral("txtField(0)"));
    colocar(caja, 165, 525, 1110, 285);
    caja->hide();
    txtField << caja;

    crearBoton(0, QStringLiteral("&Buscar"), 120);
    crearBoton(1, QStringLiteral("&Limpiar busqueda"), 1440, true, 1680);
}

void frmBusca::Form_Load() {
    ado->Recordset()->setActiveConnection(Common::DE().CN);
    ado->setRecordSource(Common::ConsultaBusqueda);
    CajasCreadas = false;
    ConstruirColumnas();
    AjustarTituloYBarra();
    if (txtField.size() > 1) txtField[1]->setFocus();
}

// Lays out the grid's columns from their raw names and, on the first call of a load, builds one filter
// box over each shown column. Every refresh gives the grid its raw names again, so this follows each.
void frmBusca::ConstruirColumnas() {
    ado->Refresh();
    ado->Recordset()->setActiveConnection(Common::DE().CN);
    dg->Refresh();

    double X = 0;
    int k = 0;
    for (int i = 0; i < dg->ColumnCount(); ++i) {
        RejillaDeDatos::Columna columna = dg->Columns(i);
        const QString Nombre = columna.Caption();
        if (runtime::Left(Nombre, 3) != QLatin1String("shw")) {
            columna.setVisible(false);
            continue;
        }
        if (X == 0) X = columna.Left();
        const int P1 = runtime::InStr(Nombre, QStringLiteral("_"));
        const int P2 = runtime::InStr(P1 + 1, Nombre, QStringLiteral("_"));
        columna.setWidth(runtime::Val(runtime::Mid(Nombre, 4)));
        columna.setCaption(
            runtime::Replace(runtime::Mid(Nombre, P2 + 1), QStringLiteral("_"), QStringLiteral(" ")));
        X += columna.Width();
        columna.setAlignment(alineacionDeTipo(tipoDeColumna(Nombre)));
        if (!CajasCreadas) {
            ++k;
            CargarCaja(k, leftTw(dg) + X - columna.Width(), columna.Width(),
                       ado->Recordset()->Fields(i).Name());
        }
    }
    if (!CajasCreadas) {
        // Enter moves from box to box, then to the buttons.
        QWidget* anterior = nullptr;
        for (int i = 1; i < txtField.size(); ++i) {
            if (anterior) setTabOrder(anterior, txtField[i]);
            anterior = txtField[i];
        }
        for (QPushButton* boton : std::as_const(cmdBoton)) {
            if (anterior) setTabOrder(anterior, boton);
            anterior = boton;
        }
        setTabOrder(anterior, dg);
    }
    CajasCreadas = true;

    dg->resize(px(X + 300), dg->height());
    setWidth(anchoTw(dg) + leftTw(dg) + 180);
    QFont negrita = dg->horizontalHeader()->font();
    negrita.setBold(true);
    dg->horizontalHeader()->setFont(negrita);
}

// Loads shpBox(k) and txtField(k) from their templates, over the column that ends at the running X.
void frmBusca::CargarCaja(int k, double left, double ancho, const QString& columna) {
    auto* forma = new QFrame(this);
    forma->setObjectName(QStringLiteral("shpBox(%1)").arg(k));
    forma->setFrameStyle(shpBox[0]->frameStyle());
    forma->setAttribute(Qt::WA_TransparentForMouseEvents);
    colocar(forma, left, topTw(shpBox[0]), ancho, altoTw(shpBox[0]));
    forma->show();
    shpBox << forma;

    auto* caja = new QLineEdit(this);
    caja->setObjectName(QStringLiteral("txtField(%1)").arg(k));
    colocar(caja, left + 45, topTw(txtField[0]), ancho - 90, altoTw(txtField[0]));
    caja->setProperty("Tag", columna);
    caja->show();
    txtField << caja;
}

void frmBusca::cmdBoton_Click(int Index) {
    const QString caption = cmdBoton[Index]->text();
    if (caption == QLatin1String("&Buscar"))
        Buscar();
    else if (caption == QLatin1String("&Limpiar busqueda"))
        LimpiarBusqueda();
}

// Every filled box adds to one condition joined by And: text columns contain the text, date columns
// equal the date as typed, other columns equal the number the box holds. A box that is not a date is
// emptied and its column goes into the condition bare, as the statement has always been sent.
void frmBusca::Buscar() {
    QString Condicion;
    for (int i = 1; i < txtField.size(); ++i) {
        QLineEdit* caja = txtField[i];
        if (caja->text().isEmpty()) continue;
        const QString Columna = caja->property("Tag").toString();
        const QString Tipo = tipoDeColumna(Columna);
        if (!Condicion.isEmpty()) Condicion += QStringLiteral(" And ");
        Condicion += Columna;
        if (Tipo == QLatin1String("str")) {
            Condicion += QStringLiteral(" Like '%") + caja->text() + QStringLiteral("%'");
        } else if (Tipo == QLatin1String("dat")) {
            if (runtime::EsFecha(caja->text()))
                Condicion += QStringLiteral(" = #") + caja->text() + QStringLiteral("#");
            else
                caja->clear();
        } else {
            caja->setText(runtime::TextoDe(runtime::Val(caja->text())));
            Condicion += QStringLiteral(" = ") + caja->text();
        }
    }
    if (!Condicion.isEmpty()) {
        const bool conWhere =
            runtime::InStr(runtime::UCase(Common::ConsultaBusqueda), QStringLiteral("WHERE")) > 0;
        Condicion = (conWhere ? QStringLiteral(" And ") : QStringLiteral(" Where ")) + Condicion;
    }
    ado->setRecordSource(Common::ConsultaBusqueda + Condicion);
    ConstruirColumnas();
}

void frmBusca::LimpiarBusqueda() {
    for (QLineEdit* caja : std::as_const(txtField))
        caja->clear();
    ado->setRecordSource(Common::ConsultaBusqueda);
    ConstruirColumnas();
}

// The picked row goes back whole, by position: the caller knows which column it reads.
void frmBusca::dg_DblClick() {
    store::Recordset* rs = ado->Recordset();
    Common::Parametros.ReDim(rs->FieldCount());
    for (int i = 0; i < rs->FieldCount(); ++i)
        Common::Parametros(i + 1) = rs->Fields(i).Value();
    Unload();
}

void frmBusca::cmdClose_Click() {
    Common::Parametros.ReDim(1);
    Unload();
}

bool Buscar(Formulario& llamador, const QString& consulta, const QString& titulo) {
    Common::AtenuarTitulo(llamador);
    Common::ConsultaBusqueda = consulta;
    auto& busca = Common::Pantalla<frmBusca>();
    busca.lblTitulo->setText(titulo);
    busca.Move(llamador.Left() + 300, llamador.Top() + 300);
    busca.ShowModal();
    Common::ResaltarTitulo(llamador);
    return !Common::Parametros.Vacio(1);
}

} // namespace shell
