// The translation of the system's dialect into SQLite's SQL, what the translator refuses, and what the
// statements the screens compose give back from a real database.
#include "BaseDePrueba.h"
#include "EsquemaEnMemoria.h"
#include "PropiedadDeTraduccion.h"
#include "runtime/Conversion.h"
#include "store/Conexion.h"
#include "store/Fallo.h"
#include "store/Recordset.h"
#include "store/sql/DialectoSQLite.h"
#include "store/sql/Parser.h"

#include <QtTest>

using namespace store;

namespace {

// Column types of the few tables the cases name.
class CatalogoFijo : public sql::Catalogo {
public:
    std::optional<QMetaType::Type> tipoColumna(const QString& tabla, const QString& columna) const override {
        const QString t = tabla.toLower(), c = columna.toLower();
        if (c == u"fecha" || c == u"fechaaprobacion" || c == u"shw1200_dat_fecha") return QMetaType::QDate;
        if (t == u"clientehistorial" && c == u"descripcion") return QMetaType::QString;
        return std::nullopt;
    }
    QStringList columnas(const QString&) const override { return {}; }
};

// Every translation these tests make passes the checks of a safe translation, and SQLite's own
// parser reads it as one statement with nothing left over. One that does not comes back as the text
// of its defect, which no expected result equals. Statements over the tables of the project's schema
// must also compile there.
QString comprobada(const QString& sentencia, const QString& traduccion, const Traductor& traductor,
                   bool delEsquema) {
    static const EsquemaEnMemoria esquema(BaseDePrueba::rutaEsquema());
    if (const QString defecto = defectoDeTraduccion(sentencia, traduccion, traductor); !defecto.isEmpty())
        return QStringLiteral("(defecto: %1)").arg(defecto);
    const auto p = esquema.preparar(traduccion);
    if (p.preparada && !p.resto.trimmed().isEmpty())
        return QStringLiteral("(SQLite dejó sin leer: %1)").arg(p.resto);
    if (delEsquema && !p.preparada) return QStringLiteral("(SQLite no la compila: %1)").arg(p.error);
    return traduccion;
}

QString traducir(const QString& sentencia) {
    static const sql::DialectoSQLite sqlite;
    static const CatalogoFijo catalogo;
    const Traductor traductor = [](const QString& s) { return sqlite.traducir(sql::analizar(s), &catalogo); };
    return comprobada(sentencia, traductor(sentencia), traductor, false);
}

} // namespace

class TstTraductor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void traduce_data();
    void traduce();
    void refusa_data();
    void refusa();
    void fuentesIniciales_data();
    void fuentesIniciales();
    void registroPorSuClave_data();
    void registroPorSuClave();
    void consultasDeApoyo_data();
    void consultasDeApoyo();
    void listasParaElegir_data();
    void listasParaElegir();
    void vistasDeBusqueda_data();
    void vistasDeBusqueda();
    void filtrosDeLaBusqueda_data();
    void filtrosDeLaBusqueda();
    void escrituras_data();
    void escrituras();
    void refusaLoQueNingunaPantallaEscribe_data();
    void refusaLoQueNingunaPantallaEscribe();
    void unLiteralNoMueveLasPiezas_data();
    void unLiteralNoMueveLasPiezas();
    void creceConLaInstruccion_data();
    void creceConLaInstruccion();
    void expresionesAnidadas_data();
    void expresionesAnidadas();
};

void TstTraductor::traduce_data() {
    QTest::addColumn<QString>("dialecto");
    QTest::addColumn<QString>("sqlite");

    // & joins text with Null as empty, and binds looser than + and -.
    QTest::newRow("concatenacion") << "Select ClienteID as Codigo, Nombres & ' ' & Apellidos as Descripcion "
                                      "From Cliente Where ClienteID=-1"
                                   << "SELECT ClienteID AS Codigo, (IFNULL(CASE WHEN typeof(Nombres) = "
                                      "'real' THEN printf('%.15g', Nombres) ELSE Nombres END, '') || ' ' || "
                                      "IFNULL(CASE WHEN typeof(Apellidos) = 'real' THEN printf('%.15g', "
                                      "Apellidos) ELSE Apellidos END, '')) AS Descripcion FROM "
                                      "Cliente WHERE (ClienteID = (-1))";
    QTest::newRow("concatenacion despues de la suma")
        << "Select A & B + C From T"
        << "SELECT (SELECT (IFNULL(CASE WHEN typeof(A) = 'real' THEN printf('%.15g', A) ELSE A END, '') || "
           "IFNULL(CASE WHEN typeof(v1) = 'real' THEN printf('%.15g', v1) ELSE v1 END, '')) FROM (SELECT "
           "(B + C) AS v1) AS ligados) AS Expr1000 FROM T";
    QTest::newRow("resta antes de concatenar")
        << "Select 'Q.' & Total - Pagado From T"
        << "SELECT (SELECT ('Q.' || IFNULL(CASE WHEN typeof(v1) = 'real' THEN printf('%.15g', v1) ELSE v1 "
           "END, '')) FROM (SELECT (Total - Pagado) AS v1) AS ligados) AS Expr1000 FROM T";
    QTest::newRow("concatenacion sin blanco")
        << "Select a & ' '& b From T"
        << "SELECT (IFNULL(CASE WHEN typeof(a) = 'real' THEN printf('%.15g', a) ELSE a END, '') || ' ' || "
           "IFNULL(CASE WHEN typeof(b) = 'real' THEN printf('%.15g', b) ELSE b END, '')) AS Expr1000 FROM T";
    // One-argument IsNull in any letter case.
    QTest::newRow("ISNULL mayusculas")
        << "Select ConceptoID as Codigo, Descripcion From Concepto Where ISNULL(Tipo) Order By 2,1"
        << "SELECT ConceptoID AS Codigo, Descripcion FROM Concepto WHERE (Tipo IS NULL) ORDER BY 2, 1";
    QTest::newRow("IsNull mixto") << "Select * From Concepto Where IsNull(Tipo)"
                                  << "SELECT * FROM Concepto WHERE (Tipo IS NULL)";
    QTest::newRow("isnull minusculas") << "select * from Concepto where not isnull(tipo)"
                                       << "SELECT * FROM Concepto WHERE (NOT (tipo IS NULL))";
    QTest::newRow("Is Not Null") << "Select * From T Where X Is Not Null"
                                 << "SELECT * FROM T WHERE (X IS NOT NULL)";
    // Delete * and plain Delete.
    QTest::newRow("Delete *") << "Delete * From FacturaDetalle Where FacturaID = 7"
                              << "DELETE FROM FacturaDetalle WHERE (FacturaID = 7)";
    QTest::newRow("Delete") << "Delete From SolicitudDetalle Where SolicitudID = 7"
                            << "DELETE FROM SolicitudDetalle WHERE (SolicitudID = 7)";
    // Date literals read day first; a text into a date column too.
    QTest::newRow("fecha #d/m/a#") << "Select * From vwBuscaRecibo Where shw1200_dat_Fecha = #5/1/2026#"
                                   << "SELECT * FROM vwBuscaRecibo WHERE (shw1200_dat_Fecha = '2026-01-05')";
    QTest::newRow("fecha #dd/mm/aaaa#") << "Select * From V Where F = #22/11/2026#"
                                        << "SELECT * FROM V WHERE (F = '2026-11-22')";
    QTest::newRow("texto a columna de fecha")
        << "Insert Into ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, ClasificacionID) VALUES "
           "(3,'05/01/2026','Pago "
           "puntual',0,1)"
        << "INSERT INTO ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, ClasificacionID) VALUES (3, "
           "'2026-01-05', "
           "'Pago puntual', 0, 1)";
    QTest::newRow("texto de fecha a columna de texto")
        << "Insert Into ClienteHistorial (Descripcion) VALUES ('05/01/2026')"
        << "INSERT INTO ClienteHistorial (Descripcion) VALUES ('05/01/2026')";
    QTest::newRow("texto comparado con columna de fecha")
        << "Select * From Solicitud Where FechaAprobacion >= '1/2/2026'"
        << "SELECT * FROM Solicitud WHERE (FechaAprobacion >= '2026-02-01')";
    QTest::newRow("fecha asignada en Update")
        << "Update Solicitud Set FechaAprobacion = '22/11/2026' Where SolicitudID = 1"
        << "UPDATE Solicitud SET FechaAprobacion = '2026-11-22' WHERE (SolicitudID = 1)";
    // Like is a contains match without regard to case, accented capitals included.
    QTest::newRow("Like")
        << "Select * From vwBuscaCliente Where shw3000_str_Nombre Like '%muñoz%'"
        << "SELECT * FROM vwBuscaCliente WHERE "
           "(REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(shw3000_str_Nombre, "
           "'á', 'Á'), 'é', 'É'), 'í', 'Í'), 'ó', 'Ó'), 'ú', 'Ú'), 'ü', 'Ü'), 'ñ', 'Ñ') LIKE '%muÑoz%')";
    QTest::newRow("Not Like")
        << "Select * From T Where a Not Like 'x%'"
        << "SELECT * FROM T WHERE (NOT (REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(a, "
           "'á', 'Á'), 'é', 'É'), 'í', 'Í'), 'ó', 'Ó'), 'ú', 'Ú'), 'ü', 'Ü'), 'ñ', 'Ñ') LIKE 'x%'))";
    // Joins by comma and Where, and Inner Join ... On with aliases.
    QTest::newRow("union por coma") << "Select F.*, E.Descripcion From Fiador F, EstadoCivil E Where "
                                       "F.EstadoCivilID = E.EstadoCivilID And FiadorID = 4"
                                    << "SELECT F.*, E.Descripcion FROM Fiador F, EstadoCivil E WHERE "
                                       "((F.EstadoCivilID = E.EstadoCivilID) AND "
                                       "(FiadorID = 4))";
    QTest::newRow("inner join") << "Select SD.ArticuloID, A.Nombre From SolicitudDetalle SD INNER JOIN "
                                   "Articulo A ON SD.ArticuloID = A.ArticuloID "
                                   "Where SD.SolicitudID = 2"
                                << "SELECT SD.ArticuloID, A.Nombre FROM SolicitudDetalle SD INNER JOIN "
                                   "Articulo A ON (SD.ArticuloID = "
                                   "A.ArticuloID) WHERE (SD.SolicitudID = 2)";
    QTest::newRow("uniones anidadas entre parentesis")
        << "Select * From (A INNER JOIN B ON A.x = B.x) LEFT JOIN C ON B.y = C.y"
        << "SELECT * FROM A INNER JOIN B ON (A.x = B.x) LEFT JOIN C ON (B.y = C.y)";
    // Format in a select list: halves away from zero, as the program formats.
    QTest::newRow("Format #0.00")
        << "Select Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From V"
        << "SELECT (SELECT (CASE WHEN v1 IS NULL THEN NULL ELSE (CASE WHEN printf('%.2f', v1) = '-' || "
           "printf('%.2f', 0) THEN printf('%.2f', 0) ELSE printf('%.2f', v1) END) END) FROM (SELECT "
           "(shw1200_dbl_Total - shw1200_dbl_Cancelado) AS v1) AS ligados) AS shw1200_dbl_Saldo FROM V";
    // The rest of the dialect.
    QTest::newRow("agregado con alias y Group By")
        << "Select Max(CodigoNumero) as Cuenta From Cliente Where CodigoLetra = 'G' Group By CodigoLetra"
        << "SELECT MAX(CodigoNumero) AS Cuenta FROM Cliente WHERE (CodigoLetra = 'G') GROUP BY CodigoLetra";
    QTest::newRow("aritmetica en Update")
        << "Update Solicitud Set Mora = Mora + 25.50 Where SolicitudID = 3"
        << "UPDATE Solicitud SET Mora = (Mora + 25.50) WHERE (SolicitudID = 3)";
    QTest::newRow("aritmetica sobre columnas de vista")
        << "Select * From V Where hidProveedorID = 2 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0 "
        << "SELECT * FROM V WHERE ((hidProveedorID = 2) AND ((shw1200_dbl_Total - shw1200_dbl_Cancelado) > "
           "0))";
    QTest::newRow("division real") << "Select 5 / 2 From T"
                                   << "SELECT (CAST(5 AS REAL) / 2) AS Expr1000 FROM T";
    QTest::newRow("texto con comilla doblada") << "Select * From T Where N = 'D''Angelo'"
                                               << "SELECT * FROM T WHERE (N = 'D''Angelo')";
    QTest::newRow("texto entre comillas dobles") << "Select * From T Where N = \"Caja\""
                                                 << "SELECT * FROM T WHERE (N = 'Caja')";
    QTest::newRow("nombre entre corchetes") << "Select [Nombre del banco] From [Banco]"
                                            << "SELECT \"Nombre del banco\" FROM \"Banco\"";
    QTest::newRow("punto y coma final") << "Select * From Banco;  "
                                        << "SELECT * FROM Banco";
    QTest::newRow("Top") << "Select Top 1 * From Banco Order By Nombre Desc"
                         << "SELECT * FROM Banco ORDER BY Nombre DESC LIMIT 1";
    QTest::newRow("verdadero") << "Select * From Cliente Where Activo = True"
                               << "SELECT * FROM Cliente WHERE (Activo = 1)";
    QTest::newRow("Between e In")
        << "Select * From T Where a Between 1 And 3 And b In (1, 2) Or c Not In (Select d From U)"
        << "SELECT * FROM T WHERE (((a BETWEEN 1 AND 3) AND (b IN (1, 2))) OR (c NOT IN (SELECT d "
           "FROM U)))";
    QTest::newRow("columna sola como condicion") << "Select * From vwBuscaRecibo Where shw1200_dat_Fecha"
                                                 << "SELECT * FROM vwBuscaRecibo WHERE shw1200_dat_Fecha";
    QTest::newRow("precedencia aritmetica") << "Select a + b * c Mod 2 - d \\ 2 From T"
                                            << "SELECT ((a + ((b * c) % 2)) - (CAST(ROUND(d) AS INTEGER) / "
                                               "CAST(ROUND(2) AS INTEGER))) AS Expr1000 FROM T";
    QTest::newRow("precedencia And Or Not")
        << "Select * From T Where Not a = 1 Or b = 2 And c = 3"
        << "SELECT * FROM T WHERE ((NOT (a = 1)) OR ((b = 2) AND (c = 3)))";
}

void TstTraductor::traduce() {
    QFETCH(QString, dialecto);
    QFETCH(QString, sqlite);
    QCOMPARE(traducir(dialecto), sqlite);
}

void TstTraductor::refusa_data() {
    QTest::addColumn<QString>("sentencia");
    // A value typed into a filter box must never become a second statement.
    QTest::newRow("segunda sentencia") << "Select * From Banco Where BancoID = 1; Delete From Banco";
    QTest::newRow("segunda sentencia tras texto") << "Select * From T Where N Like '%x%'; Drop Table T";
    QTest::newRow("comilla en un filtro")
        << "Select * From vwBuscaCliente Where shw3000_str_Nombre Like '%O'Brien%'";
    QTest::newRow("cadena sin terminar") << "Select * From T Where N = 'abc";
    QTest::newRow("fecha sin terminar") << "Select * From T Where F = #22/11/2026";
    QTest::newRow("fecha imposible") << "Select * From T Where F = #31/02/2026#";
    QTest::newRow("caracter desconocido") << "Select * From T Where a = ?";
    QTest::newRow("comentario") << "Select * From T -- x";
    QTest::newRow("sobra texto") << "Select * From T Where a = 1 2";
    QTest::newRow("parentesis sin cerrar") << "Select * From T Where (a = 1";
    QTest::newRow("sin sentencia") << "Drop Table Banco";
    QTest::newRow("funcion desconocida") << "Select Shell('rm') From T";
    QTest::newRow("Format con patron desconocido") << "Select Format(x, 'Currency') From T";
    QTest::newRow("valores y columnas desiguales") << "Insert Into T (a, b) Values (1)";
    QTest::newRow("numero mal formado") << "Select * From T Where a = 1,500.00x";
    QTest::newRow("vacia") << "   ";
}

void TstTraductor::refusa() {
    QFETCH(QString, sentencia);
    try {
        const QString r = traducir(sentencia);
        QFAIL(qPrintable(QStringLiteral("was translated to: ") + r));
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), FalloSintaxis);
        QVERIFY(!f.descripcion().isEmpty());
    }
}

// The statements the screens compose, with the values they splice in, run through the store on a
// database built from the project's schema and holding the rows below. A read gives back the fields
// the screens read by name; a write changes exactly the rows a second look at the file shows.

namespace {

// Known rows, with their keys written out so that the statements can name them. What the views make
// of them: stock 4, 3 and 12 (articles 1 to 3); application 101 owes 6325 (6900 of lines, 100
// discount, 500 of enganche paid, mora 40 of which 15 paid), 102 owes 200 and 103 nothing; goods-in
// note 401 is paid in full, 402 has 0.50 left and 403 (of the other supplier) all its 280.
const char* const kFilasConocidas = R"(
INSERT INTO Banco (BancoID, Nombre, Direccion) VALUES (1, 'Banco Industrial', 'Zona 4'), (2, 'Banrural', NULL);
INSERT INTO Proveedor (ProveedorID, Nombre, NIT, Direccion, Telefonos, Contacto) VALUES
    (1, 'Distribuidora Elektra', '123456-7', 'Zona 12', '2222-3333', 'Carlos Paz'),
    (2, 'Muebles Ñandú', 'C/F', NULL, NULL, NULL);
INSERT INTO Articulo (ArticuloID, Nombre, Modelo, Color, Costo, ContadoPorcentaje, ContadoValor,
                      CreditoPorcentaje, CreditoValor) VALUES
    (1, 'Refrigeradora', 'RF-200', 'Blanco', 2500, 20, 0, 40, 0),
    (2, 'Estufa', 'E-4', 'Negro', 1200.5, 0, 299.5, 0, 499.5),
    (3, 'Licuadora', 'L1', NULL, 150, 0, 0, 0, 0);
INSERT INTO Cliente (ClienteID, Nombres, Apellidos, FechaNacimiento, NIT, CedulaRegistro, CedulaNumero,
                     CodigoLetra, CodigoNumero, Limite, Activo) VALUES
    (1, 'Ana', 'MUÑOZ', '1990-05-01', '1234567-8', 'A-1', '12345', 'M', 1, 5000, 1),
    (2, 'Luis', 'García', NULL, NULL, NULL, NULL, 'G', 7, 0, 1),
    (3, 'Eva', 'Pérez', NULL, NULL, NULL, NULL, 'P', 2, 0, 0),
    (4, 'José', 'Gómez', NULL, NULL, NULL, NULL, 'G', 3, 0, 1);
INSERT INTO ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, ClasificacionID) VALUES
    (1, '2025-06-01', 'Pago puntual', 0, 1), (1, '2025-09-15', 'Atraso de cuota', 150.75, 3),
    (2, '2025-07-01', 'Referencia', 0, 2);
INSERT INTO Fiador (FiadorID, Nombres, Apellidos, EstadoCivilID, Telefonos, Activo) VALUES
    (1, 'Jorge', 'López', 2, '5555-1111', 1), (2, 'Marta', 'Ruiz', NULL, NULL, 1), (3, 'Raúl', 'Díaz', 1, NULL, 0);
INSERT INTO Solicitud (SolicitudID, NumeroSolicitud, Fecha, ClienteID, FiadorID, CasaDireccion, Descuento,
                       Enganche, PrimerPago, MesesCredito, Estado, Mora) VALUES
    (1, 101, '2026-01-05', 1, 1, ' 5a calle 3-20 zona 1 ', 100, 500, 300, 10, 1, 40),
    (2, 102, '2026-01-20', 2, 0, NULL, 0, 0, 0, 0, 0, 0),
    (3, 103, '2026-02-03', 2, 1, NULL, 0, 0, 0, 0, 3, 0);
INSERT INTO SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES
    (1, 1, 1, 3500), (1, 2, 2, 3400), (2, 3, 1, 200);
INSERT INTO Recibo (ReciboID, NumeroRecibo, Fecha, SolicitudID, ClienteID, Nombre, BancoID, ChequeNumero,
                    ChequeValor, Efectivo) VALUES
    (1, 201, '2026-02-10', 1, 0, NULL, 1, '778', 500, 15),
    (2, 202, '2026-03-01', 0, 3, NULL, 0, NULL, 0, 425);
INSERT INTO ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES
    (1, 1, 0, 1, 500), (1, 4, 0, 1, 15), (2, 0, 3, 2, 200), (2, 7, 0, 1, 25);
INSERT INTO Factura (FacturaID, NumeroFactura, Fecha, SolicitudID, ClienteID, Nombre, NIT, Descuento, BancoID,
                     Efectivo, Estado) VALUES
    (1, 301, '2026-02-15', 0, 0, 'Pedro Sosa', 'C/F', 50, 2, 1850, 0);
INSERT INTO FacturaDetalle (FacturaID, ArticuloID, ConceptoID, Cantidad, EsCredito, Precio) VALUES
    (1, 2, 0, 2, 0, 900), (1, 0, 7, 1, 0, 100);
INSERT INTO NotaIngreso (IngresoID, NumeroIngreso, ProveedorID, Fecha, Descripcion) VALUES
    (1, 401, 1, '2026-01-02', 'Compra de enero'), (2, 402, 1, '2026-01-20', 'Compra de estufas'),
    (3, 403, 2, '2026-02-05', 'Muebles de sala');
INSERT INTO NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, Costo) VALUES
    (1, 1, 5, 2500), (1, 3, 10, 150), (2, 2, 4, 1200.5), (3, 3, 2, 140);
INSERT INTO NotaEnvio (NotaID, NumeroNota, Fecha, SolicitudID, FacturaID, ReciboID, Direccion) VALUES
    (1, 501, '2026-02-20', 1, 0, 0, '5a calle 3-20 zona 1'), (2, 502, '2026-03-02', 0, 1, 0, 'Mixco');
INSERT INTO NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) VALUES (1, 1, 1), (2, 2, 1);
INSERT INTO Documento (DocumentoID, NumeroDocumento, ProveedorID, Fecha, Descripcion) VALUES
    (1, 601, 1, '2026-02-01', 'Abono a compras');
INSERT INTO DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (1, 1, 14000), (1, 2, 4801.5);
)";

// A fresh database with the known rows, and the shared connection open on it.
struct TiendaConocida {
    TiendaConocida() {
        base.sqlite(QString::fromUtf8(kFilasConocidas));
        cn.Open();
    }
    BaseDePrueba base{true};
    Conexion cn{QStringLiteral("Provider=MSDASQL.1;Persist Security Info=False;Data Source=DSNBrenal;")};
};

// The named fields of every row, as "a|b" lines joined by ";"; a Null reads "Null". A statement
// without Order By leaves the order to the database, so its lines are compared sorted.
QString leer(Conexion& cn, const QString& sentencia, const QString& campos) try {
    const Traductor traductor = [&](const QString& s) { return cn.traducir(s); };
    const QString traduccion = cn.traducir(sentencia);
    if (const QString c = comprobada(sentencia, traduccion, traductor, true); c != traduccion) return c;
    Recordset rs;
    rs.Open(sentencia, cn);
    const QStringList nombres = campos.split(QLatin1Char(','));
    for (const QString& nombre : nombres)
        if (rs.indiceCampo(nombre) < 0) return QStringLiteral("(no hay campo %1)").arg(nombre);
    QStringList lineas;
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList celdas;
        for (const QString& nombre : nombres) {
            const QVariant v = rs.Fields(nombre).Value();
            celdas << (runtime::EsNulo(v) ? QStringLiteral("Null") : runtime::TextoDe(v));
        }
        lineas << celdas.join(QLatin1Char('|'));
    }
    if (!sentencia.contains(QLatin1String("Order By"), Qt::CaseInsensitive)) lineas.sort();
    return lineas.join(QLatin1Char(';'));
} catch (const Fallo& f) {
    return QStringLiteral("(Fallo %1: %2)").arg(f.numeroHex(), f.descripcion());
}

void columnasDeLectura() {
    QTest::addColumn<QString>("sentencia");
    QTest::addColumn<QString>("campos");
    QTest::addColumn<QString>("resultado");
}

void comprobarLectura() {
    QFETCH(QString, sentencia);
    QFETCH(QString, campos);
    QFETCH(QString, resultado);
    TiendaConocida tienda;
    QCOMPARE(leer(tienda.cn, sentencia, campos), resultado);
}

} // namespace

// What each data control loads first: the whole small tables, and for every other screen an empty
// set that still carries the columns the screen binds.
void TstTraductor::fuentesIniciales_data() {
    columnasDeLectura();
    QTest::newRow("adoBanco") << "Select * From Banco"
                              << "BancoID,Nombre,Direccion"
                              << "1|Banco Industrial|Zona 4;2|Banrural|Null";
    QTest::newRow("adoEstadoCivil") << "Select * From EstadoCivil"
                                    << "EstadoCivilID,Descripcion"
                                    << "1|Soltero(a);2|Casado(a);3|Unido(a);4|Divorciado(a);5|Viudo(a)";
    QTest::newRow("adoProveedor") << "Select * From Proveedor Where ProveedorID < 0"
                                  << "ProveedorID,Nombre,NIT,Direccion,Telefonos,Fax,Contacto"
                                  << "";
    QTest::newRow("adoArticulo") << "Select * From Articulo Where ArticuloID <0"
                                 << "ArticuloID,Nombre,Costo,ContadoPorcentaje,CreditoValor,Activo"
                                 << "";
    QTest::newRow("CrearArticulo") << "Select * From Articulo Where ArticuloID < 0"
                                   << "ArticuloID,Modelo,Color,ContadoValor,CreditoPorcentaje"
                                   << "";
    QTest::newRow("adoCliente") << "Select * From Cliente Where ClienteID < 0"
                                << "ClienteID,Nombres,FechaNacimiento,CodigoLetra,CodigoNumero,Activo"
                                << "";
    QTest::newRow("adoFiador") << "Select * From Fiador Where FiadorID < 0"
                               << "FiadorID,Nombres,EstadoCivilID,CasaPropia,TrabajoSueldo,Activo"
                               << "";
    QTest::newRow("adoSolicitud") << "Select * From Solicitud Where SolicitudID < 0"
                                  << "SolicitudID,NumeroSolicitud,Fecha,Estado,Mora,FechaAprobacion"
                                  << "";
    QTest::newRow("adoFacturas") << "Select * From Factura Where FacturaID < 0"
                                 << "FacturaID,NumeroFactura,Fecha,NIT,Descuento,Estado"
                                 << "";
    QTest::newRow("adoRecibos") << "Select * From Recibo Where ReciboID<0"
                                << "ReciboID,NumeroRecibo,Fecha,SolicitudID,ChequeValor,Vuelto"
                                << "";
    QTest::newRow("adoNota") << "Select * From NotaEnvio Where NotaID<0"
                             << "NotaID,NumeroNota,Fecha,SolicitudID,FacturaID,ReciboID"
                             << "";
    QTest::newRow("frmDocumentos")
        << "Select D.DocumentoID, D.NumeroDocumento, D.ProveedorID, P.Nombre, D.Fecha, "
           "D.Descripcion From Documento D INNER JOIN Proveedor P ON D.ProveedorID = "
           "P.ProveedorID Where D.DocumentoID < 0"
        << "DocumentoID,NumeroDocumento,ProveedorID,Nombre,Fecha,Descripcion"
        << "";
    QTest::newRow("frmDocumentos sin union")
        << "Select D.DocumentoID, D.NumeroDocumento, D.ProveedorID, D.Fecha, D.Descripcion From Documento D "
           "Where D.DocumentoID < 0"
        << "DocumentoID,NumeroDocumento,ProveedorID,Fecha,Descripcion"
        << "";
    QTest::newRow("adoIngreso")
        << "Select N.IngresoID, N.NumeroIngreso, N.ProveedorID, P.Nombre, N.Fecha, "
           "N.Descripcion From NotaIngreso N INNER JOIN Proveedor P ON N.ProveedorID = "
           "P.ProveedorID Where N.IngresoID < 0"
        << "IngresoID,NumeroIngreso,ProveedorID,Nombre,Fecha,Descripcion"
        << "";
    QTest::newRow("adoIngreso sin union") << "Select N.IngresoID, N.NumeroIngreso, N.ProveedorID, N.Fecha, "
                                             "N.Descripcion From NotaIngreso N Where N.IngresoID < 0"
                                          << "IngresoID,NumeroIngreso,ProveedorID,Fecha,Descripcion"
                                          << "";
    QTest::newRow("frmListado")
        << "Select ClienteID as Codigo, Nombres & ' ' & Apellidos as Descripcion From "
           "Cliente Where ClienteID=-1"
        << "Codigo,Descripcion"
        << "";
    QTest::newRow("frmBusca") << "Select EstadoCivilID From EstadoCivil Where EstadoCivilID<0 "
                              << "EstadoCivilID"
                              << "";
}

void TstTraductor::fuentesIniciales() {
    comprobarLectura();
}

// One row brought up by its key, as a screen does after a search or a save.
void TstTraductor::registroPorSuClave_data() {
    columnasDeLectura();
    QTest::newRow("proveedor") << "Select * From Proveedor Where ProveedorID = 2"
                               << "ProveedorID,Nombre,NIT,Direccion"
                               << "2|Muebles Ñandú|C/F|Null";
    QTest::newRow("articulo") << "Select * From Articulo Where ArticuloID = 2"
                              << "ArticuloID,Nombre,Costo,ContadoValor,CreditoValor"
                              << "2|Estufa|1200.5|299.5|499.5";
    QTest::newRow("cliente")
        << "Select * From Cliente Where ClienteID = 1"
        << "ClienteID,Nombres,Apellidos,FechaNacimiento,NIT,CodigoLetra,CodigoNumero,Limite"
        << "1|Ana|MUÑOZ|01/05/1990|1234567-8|M|1|5000";
    QTest::newRow("fiador") << "Select * From Fiador Where FiadorID = 1"
                            << "FiadorID,Nombres,Apellidos,EstadoCivilID,Telefonos"
                            << "1|Jorge|López|2|5555-1111";
    QTest::newRow("solicitud")
        << "Select * From Solicitud Where SolicitudID = 1"
        << "SolicitudID,NumeroSolicitud,Fecha,ClienteID,FiadorID,Enganche,PrimerPago,MesesCredito,Estado,Mora"
        << "1|101|05/01/2026|1|1|500|300|10|1|40";
    QTest::newRow("recibo")
        << "Select * From Recibo Where ReciboID = 1"
        << "ReciboID,NumeroRecibo,Fecha,SolicitudID,BancoID,ChequeNumero,ChequeValor,Efectivo"
        << "1|201|10/02/2026|1|1|778|500|15";
    QTest::newRow("factura") << "Select * From Factura Where FacturaID = 1"
                             << "FacturaID,NumeroFactura,Fecha,Nombre,NIT,Descuento,BancoID,Estado"
                             << "1|301|15/02/2026|Pedro Sosa|C/F|50|2|0";
    QTest::newRow("nota de envio") << "Select * From NotaEnvio Where NotaID = 2"
                                   << "NotaID,NumeroNota,Fecha,SolicitudID,FacturaID,ReciboID,Direccion"
                                   << "2|502|02/03/2026|0|1|0|Mixco";
    QTest::newRow("nota de ingreso")
        << "Select N.IngresoID, N.NumeroIngreso, N.ProveedorID, P.Nombre, N.Fecha, "
           "N.Descripcion From NotaIngreso N INNER JOIN Proveedor P ON "
           "N.ProveedorID = P.ProveedorID Where N.IngresoID = 1"
        << "IngresoID,NumeroIngreso,ProveedorID,Nombre,Fecha,Descripcion"
        << "1|401|1|Distribuidora Elektra|02/01/2026|Compra de enero";
    QTest::newRow("nota de ingreso sin union") << "Select N.IngresoID, N.NumeroIngreso, N.ProveedorID, "
                                                  "N.Fecha, N.Descripcion From NotaIngreso N Where "
                                                  "N.IngresoID = 3"
                                               << "IngresoID,NumeroIngreso,ProveedorID,Fecha,Descripcion"
                                               << "3|403|2|05/02/2026|Muebles de sala";
    QTest::newRow("documento")
        << "Select D.DocumentoID, D.NumeroDocumento, D.ProveedorID, P.Nombre, D.Fecha, "
           "D.Descripcion From Documento D INNER JOIN Proveedor P ON D.ProveedorID = "
           "P.ProveedorID Where D.DocumentoID = 1"
        << "DocumentoID,NumeroDocumento,ProveedorID,Nombre,Fecha,Descripcion"
        << "1|601|1|Distribuidora Elektra|01/02/2026|Abono a compras";
}

void TstTraductor::registroPorSuClave() {
    comprobarLectura();
}

// The lookups screens and procedures make on the shared connection: numbering, concept types,
// client codes, duplicate numbers, lines of a document, balances, stock.
void TstTraductor::consultasDeApoyo_data() {
    columnasDeLectura();
    QTest::newRow("SiguienteNumero solicitud")
        << "Select Max(NumeroSolicitud) as Maximo From Solicitud Where SolicitudID>0"
        << "Maximo"
        << "103";
    QTest::newRow("SiguienteNumero factura")
        << "Select Max(NumeroFactura) as Maximo From Factura Where FacturaID>0"
        << "Maximo"
        << "301";
    QTest::newRow("SiguienteNumero recibo")
        << "Select Max(NumeroRecibo) as Maximo From Recibo Where ReciboID>0"
        << "Maximo"
        << "202";
    QTest::newRow("SiguienteNumero documento")
        << "Select Max(NumeroDocumento) as Maximo From Documento Where DocumentoID>0"
        << "Maximo"
        << "601";
    QTest::newRow("SiguienteNumero nota de ingreso")
        << "Select Max(NumeroIngreso) as Maximo From NotaIngreso Where IngresoID>0"
        << "Maximo"
        << "403";
    QTest::newRow("SiguienteNumero nota de envio")
        << "Select Max(NumeroNota) as Maximo From NotaEnvio Where NotaID>0"
        << "Maximo"
        << "502";
    QTest::newRow("TipoConcepto") << "Select Tipo From Concepto Where ConceptoID = 3"
                                  << "Tipo"
                                  << "3";
    QTest::newRow("TipoConcepto ordinario") << "Select Tipo From Concepto Where ConceptoID = 7"
                                            << "Tipo"
                                            << "Null";
    QTest::newRow("SiguienteCodigo")
        << "Select Max(CodigoNumero) as Cuenta From Cliente Where CodigoLetra = 'G' Group By CodigoLetra"
        << "Cuenta"
        << "7";
    QTest::newRow("SiguienteCodigo en minuscula")
        << "Select Max(CodigoNumero) as Cuenta From Cliente Where CodigoLetra = 'g' Group By CodigoLetra"
        << "Cuenta"
        << "7";
    QTest::newRow("SiguienteCodigo de letra nueva")
        << "Select Max(CodigoNumero) as Cuenta From Cliente Where CodigoLetra = 'Z' Group By CodigoLetra"
        << "Cuenta"
        << "";
    QTest::newRow("historial del cliente")
        << "Select H.Fecha, H.Descripcion, H.Valor, C.ClasificacionID, C.Descripcion as Clasificacion From "
           "ClienteHistorial H, Clasificacion C Where H.ClasificacionID = C.ClasificacionID And H.ClienteID "
           "= 1"
        << "Fecha,Descripcion,Valor,ClasificacionID,Clasificacion"
        << "01/06/2025|Pago puntual|0|1|Excelente;15/09/2025|Atraso de cuota|150.75|3|Regular";
    QTest::newRow("fiador con estado civil")
        << "Select F.*, E.Descripcion From Fiador F, EstadoCivil E Where "
           "F.EstadoCivilID = E.EstadoCivilID And FiadorID = 1"
        << "FiadorID,Nombres,Apellidos,Telefonos,Descripcion"
        << "1|Jorge|López|5555-1111|Casado(a)";
    QTest::newRow("fiador sin estado civil")
        << "Select F.*, E.Descripcion From Fiador F, EstadoCivil E Where "
           "F.EstadoCivilID = E.EstadoCivilID And FiadorID = 2"
        << "FiadorID,Descripcion"
        << "";
    QTest::newRow("numero de solicitud repetido")
        << "Select NumeroSolicitud From Solicitud Where NumeroSolicitud = 103"
        << "NumeroSolicitud"
        << "103";
    QTest::newRow("numero de solicitud vacio")
        << "Select NumeroSolicitud From Solicitud Where NumeroSolicitud = 0"
        << "NumeroSolicitud"
        << "";
    QTest::newRow("numero de recibo repetido") << "Select NumeroRecibo From Recibo Where NumeroRecibo = 202"
                                               << "NumeroRecibo"
                                               << "202";
    QTest::newRow("numero de recibo libre") << "Select NumeroRecibo From Recibo Where NumeroRecibo = 999"
                                            << "NumeroRecibo"
                                            << "";
    QTest::newRow("lineas de la solicitud")
        << "Select SD.SolicitudID, SD.ArticuloID, SD.Cantidad, A.Nombre & ' ' & A.Modelo & ' ' & A.Color as "
           "NombreArticulo, SD.Precio From SolicitudDetalle SD INNER JOIN Articulo A ON SD.ArticuloID = "
           "A.ArticuloID Where SD.SolicitudID = 1"
        << "SolicitudID,ArticuloID,Cantidad,NombreArticulo,Precio"
        << "1|1|1|Refrigeradora RF-200 Blanco|3500;1|2|2|Estufa E-4 Negro|3400";
    QTest::newRow("linea con articulo sin color")
        << "Select SD.SolicitudID, SD.ArticuloID, SD.Cantidad, A.Nombre & ' ' & A.Modelo & ' ' & A.Color as "
           "NombreArticulo, SD.Precio From SolicitudDetalle SD INNER JOIN Articulo A ON SD.ArticuloID = "
           "A.ArticuloID Where SD.SolicitudID = 2"
        << "NombreArticulo,Precio"
        << "Licuadora L1 |200";
    QTest::newRow("solicitud en la factura")
        << "Select vwBS.*, S.Descuento From vwBuscaSolicitud vwBS, Solicitud S Where vwBS.hidID = "
           "S.SolicitudID And vwBS.shw1200_int_Solicitud = 101"
        << "hidID,shw800_str_Estado,shw3000_str_Nombre_del_cliente,shw1200_str_NIT,Saldo,hidClienteID,"
           "Descuento"
        << "1|Aprobada|Ana MUÑOZ|1234567-8|6325|1|100";
    QTest::newRow("solicitud cancelada en la factura")
        << "Select vwBS.*, S.Descuento From vwBuscaSolicitud vwBS, Solicitud S Where vwBS.hidID = "
           "S.SolicitudID And vwBS.shw1200_int_Solicitud = 103"
        << "hidID,shw800_str_Estado,Saldo,Descuento"
        << "3|Rechazada|0|0";
    QTest::newRow("lineas de la solicitud en la factura")
        << "Select ArticuloID, Nombre & ' ' & Modelo & ' ' & Color as Descripcion, Cantidad, Precio, Total "
           "From vwSolicitudDetalle Where SolicitudID = 1"
        << "ArticuloID,Descripcion,Cantidad,Precio,Total"
        << "1|Refrigeradora RF-200 Blanco|1|3500|3500;2|Estufa E-4 Negro|2|1700|3400";
    QTest::newRow("solicitud en el recibo")
        << "Select hidID, shw800_str_Estado, shw3000_str_Nombre_del_cliente, shw680_str_Codigo From "
           "vwBuscaSolicitud Where shw1200_int_Solicitud = 102"
        << "hidID,shw800_str_Estado,shw3000_str_Nombre_del_cliente,shw680_str_Codigo"
        << "2|Pendiente|Luis García|G7";
    QTest::newRow("saldos de la solicitud") << "Select * From vwSaldosXSolicitud Where SolicitudID = 1"
                                            << "Enganche,PrimerPago,Total,CuotaMensual,Mora"
                                            << "0|300|6300|600|25";
    QTest::newRow("lineas del recibo")
        << "Select ConceptoID, ArticuloID, Cantidad, Descripcion, Valor, Total From "
           "vwReciboDetalle RD Where ReciboID = 2"
        << "ConceptoID,ArticuloID,Cantidad,Descripcion,Valor,Total"
        << "0|3|2|Licuadora L1|200|400;7|0|1|Flete|25|25";
    QTest::newRow("lineas de la factura")
        << "Select * From vwFacturaDetalle Where FacturaID = 1"
        << "ArticuloID,ConceptoID,Cantidad,EsCredito,Descripcion,Precio,Total"
        << "0|7|1|0|Flete|100|100;2|0|2|0|Estufa E-4 Negro|900|1800";
    QTest::newRow("ValidarVentaArticulo") << "Select shw3800_str_Descripcion_del_articulo & ' ' & "
                                             "shw1200_str_Modelo & ' '& shw1200_str_Color as "
                                             "Descripcion, shw900_dbl_Costo as Costo, shw1000_dbl_Existencia "
                                             "as Existencia From vwBuscaArticulo "
                                             "Where hidID = 2"
                                          << "Descripcion,Costo,Existencia"
                                          << "Estufa E-4 Negro|1200.5|3";
    QTest::newRow("ValidarVentaArticulo sin color")
        << "Select shw3800_str_Descripcion_del_articulo & ' ' & shw1200_str_Modelo & ' '& shw1200_str_Color "
           "as "
           "Descripcion, shw900_dbl_Costo as Costo, shw1000_dbl_Existencia as Existencia From "
           "vwBuscaArticulo "
           "Where hidID = 3"
        << "Descripcion,Costo,Existencia"
        << "Licuadora L1 |150|12";
    QTest::newRow("lineas de la nota de ingreso")
        << "Select * From vwNotaIngresoDetalle Where IngresoID = 1"
        << "ArticuloID,Nombre,Costo,ContadoPorcentaje,Ingresos,Existencia,CostoTotal"
        << "1|Refrigeradora|2500|20|5|4|12500;3|Licuadora|150|0|10|12|1500";
    QTest::newRow("lineas de la nota de envio") << "Select * From vwNotaEnvioDetalle Where NotaID = 1"
                                                << "ArticuloID,Cantidad,Nombre,Modelo,Color"
                                                << "1|1|Refrigeradora|RF-200|Blanco";
    QTest::newRow("lineas del documento")
        << "Select * From vwDocumentoDetalle Where DocumentoID = 1"
        << "IngresoID,NumeroIngreso,Fecha,Descripcion,Valor"
        << "1|401|02/01/2026|Compra de enero|14000;2|402|20/01/2026|Compra de "
           "estufas|4801.5";
    QTest::newRow("envio por numero de solicitud")
        << "Select * From vwSaldosArticulosXSolicitud Where shw1200_int_Solicitud = 101"
        << "hidID,shw3000_str_Nombre_del_cliente,hidDireccion,shw1200_dbl_Saldo"
        << "1|Ana MUÑOZ| 5a calle 3-20 zona 1 |2";
    QTest::newRow("envio por numero de factura")
        << "Select * From vwSaldosArticulosXFactura Where shw1200_int_Factura = 301"
        << "hidFacturaID,shw3200_str_Nombre_del_cliente,shw1200_dbl_Saldo"
        << "1|Pedro Sosa|1";
    QTest::newRow("envio por numero de recibo")
        << "Select * From vwSaldosArticulosXRecibo Where shw1200_int_Recibo = 202"
        << "hidReciboID,shw3200_str_Nombre_del_cliente,shw1200_dbl_Saldo"
        << "2|Eva Pérez|2";
    QTest::newRow("envio de recibo sin articulos")
        << "Select * From vwSaldosArticulosXRecibo Where shw1200_int_Recibo = 201"
        << "hidReciboID"
        << "";
    QTest::newRow("pendientes de la solicitud")
        << "Select hidArticuloID, shw3000_str_Descripcion, shw1200_int_Saldo From vwSaldoXArticuloXSolicitud "
           "Where hidSolicitudID = 1 And shw1200_int_Saldo > 0"
        << "hidArticuloID,shw3000_str_Descripcion,shw1200_int_Saldo"
        << "2|Estufa E-4 Negro|2";
    QTest::newRow("pendientes de la factura") << "Select hidArticuloID, shw3000_str_Descripcion, "
                                                 "shw1200_int_Saldo From vwSaldoXArticuloXFactura Where "
                                                 "hidFacturaID = 1 And shw1200_int_Saldo > 0"
                                              << "hidArticuloID,shw3000_str_Descripcion,shw1200_int_Saldo"
                                              << "2|Estufa E-4 Negro|1";
    QTest::newRow("pendientes del recibo") << "Select hidArticuloID, shw3000_str_Descripcion, "
                                              "shw1200_int_Saldo From vwSaldoXArticuloXRecibo Where "
                                              "hidReciboID = 2 And shw1200_int_Saldo > 0"
                                           << "hidArticuloID,shw3000_str_Descripcion,shw1200_int_Saldo"
                                           << "3|Licuadora L1|2";
}

void TstTraductor::consultasDeApoyo() {
    comprobarLectura();
}

// The pick lists: a numeric Codigo and a text Descripcion, in the order the list shows them.
void TstTraductor::listasParaElegir_data() {
    columnasDeLectura();
    QTest::newRow("bancos") << "Select BancoID as Codigo, Nombre as Descripcion From Banco Order By Nombre"
                            << "Codigo,Descripcion"
                            << "1|Banco Industrial;2|Banrural";
    QTest::newRow("proveedores")
        << "Select ProveedorID as Codigo, Nombre as Descripcion From Proveedor Order By "
           "Nombre"
        << "Codigo,Descripcion"
        << "1|Distribuidora Elektra;2|Muebles Ñandú";
    QTest::newRow("conceptos de la factura")
        << "Select ConceptoID as Codigo, Descripcion From Concepto Where ISNULL(Tipo) Order By 2,1"
        << "Codigo,Descripcion"
        << "7|Flete;5|Gastos administrativos;6|Gastos de cobranza;8|Instalación;10|Otros cobros;9|Reparación";
    QTest::newRow("conceptos del recibo sin solicitud")
        << "Select ConceptoID as Codigo, Descripcion From Concepto Where IsNull(Tipo)Order By 2,1"
        << "Codigo,Descripcion"
        << "7|Flete;5|Gastos administrativos;6|Gastos de cobranza;8|Instalación;10|Otros cobros;9|Reparación";
    QTest::newRow("conceptos del recibo de una solicitud")
        << "Select ConceptoID as Codigo, Descripcion From Concepto Order By 2,1"
        << "Codigo,Descripcion"
        << "3|Cuota mensual;1|Enganche;7|Flete;5|Gastos administrativos;6|Gastos de cobranza;8|Instalación;"
           "4|Mora;10|Otros cobros;2|Primer pago;9|Reparación";
}

void TstTraductor::listasParaElegir() {
    comprobarLectura();
}

// What each search opens with: the search views read by their column names.
void TstTraductor::vistasDeBusqueda_data() {
    columnasDeLectura();
    QTest::newRow("clientes")
        << "Select * From vwBuscaCliente"
        << "hidID,shw680_str_Codigo,shw2200_str_Nombres,shw2200_str_Apellidos,shw1200_str_NIT"
        << "1|M1|Ana|MUÑOZ|1234567-8;2|G7|Luis|García|Null;4|G3|José|Gómez|Null";
    QTest::newRow("fiadores") << "Select * From vwBuscaFiador"
                              << "hidID,shw2200_str_Nombres,shw2200_str_Apellidos,shw1600_str_Telefonos"
                              << "1|Jorge|López|5555-1111;2|Marta|Ruiz|Null";
    QTest::newRow("articulos")
        << "Select * From vwBuscaArticulo"
        << "hidID,shw3800_str_Descripcion_del_articulo,shw1200_str_Color,shw900_dbl_Costo,"
           "shw1000_dbl_Existencia,shw1300_dbl_Precio_contado,shw1300_dbl_Precio_credito"
        << "1|Refrigeradora|Blanco|2500|4|3000|3500;2|Estufa|Negro|1200.5|3|1500|1700;"
           "3|Licuadora|Null|150|12|150|150";
    QTest::newRow("solicitudes")
        << "Select * from vwBuscaSolicitud"
        << "hidID,shw1200_int_Solicitud,shw800_str_Estado,shw3000_str_Nombre_del_cliente,"
           "shw1100_dat_Fecha,shw1200_dbl_Saldo"
        << "1|101|Aprobada|Ana MUÑOZ|05/01/2026|6325;2|102|Pendiente|Luis "
           "García|20/01/2026|200;3|103|Rechazada|Luis García|03/02/2026|0";
    QTest::newRow("solicitudes desde el recibo") << "Select * From vwBuscaSolicitud"
                                                 << "hidID,shw680_str_Codigo,shw1200_str_NIT,hidClienteID"
                                                 << "1|M1|1234567-8|1;2|G7||2;3|G7||2";
    QTest::newRow("solicitudes saldadas") << "Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0"
                                          << "hidID,shw1200_int_Solicitud,Saldo"
                                          << "3|103|0";
    QTest::newRow("recibos")
        << "Select * From vwBuscaRecibo"
        << "hidID,shw1000_int_Recibo,shw1100_dat_Fecha,shw1100_int_Solicitud,shw680_str_Codigo,"
           "shw3000_str_Nombre,shw1200_dbl_Total"
        << "1|201|10/02/2026|101|M1|Ana MUÑOZ|515;2|202|01/03/2026|0|P2|Eva Pérez|425";
    QTest::newRow("facturas")
        << "Select * From vwBuscaFactura"
        << "hidID,shw1000_int_Factura,shw1100_dat_Fecha,shw3000_str_Nombre,shw1200_str_NIT,"
           "shw1200_dbl_Total"
        << "1|301|15/02/2026|Pedro Sosa|C/F|1850";
    QTest::newRow("notas de ingreso")
        << "Select * From vwBuscaNotaIngreso"
        << "hidID,shw1100_int_No_Factura,shw1100_dat_Fecha,shw3000_str_Proveedor,"
           "shw1200_dbl_Total"
        << "1|401|02/01/2026|Distribuidora Elektra|14000;2|402|20/01/2026|"
           "Distribuidora Elektra|4802;3|403|05/02/2026|Muebles Ñandú|280";
    QTest::newRow("notas de envio")
        << "Select * From vwBuscaNotaEnvio"
        << "hidID,shw1000_int_No_Envio,shw1100_dat_Fecha,shw1100_int_Solicitud,"
           "shw1100_int_Factura,shw3000_str_Nombre_del_cliente,shw3000_str_Direccion"
        << "1|501|20/02/2026|101|0|Ana MUÑOZ|5a calle 3-20 zona 1;2|502|02/03/2026|0|"
           "301|Pedro Sosa|Mixco";
    QTest::newRow("documentos") << "Select * From vwBuscaDocumento"
                                << "hidID,shw1200_int_Documento,shw1100_dat_Fecha,shw3000_str_Proveedor,"
                                   "shw1200_dbl_Valor"
                                << "1|601|01/02/2026|Distribuidora Elektra|18801.5";
    QTest::newRow("solicitudes con articulos pendientes")
        << "Select * From vwSaldosArticulosXSolicitud Where shw1200_dbl_Saldo > 0"
        << "hidID,shw1200_int_Solicitud,shw3000_str_Nombre_del_cliente,shw1200_dbl_Saldo"
        << "1|101|Ana MUÑOZ|2";
    QTest::newRow("facturas con articulos pendientes")
        << "Select * From vwSaldosArticulosXFactura Where shw1200_dbl_Saldo > 0"
        << "hidFacturaID,shw1200_int_Factura,shw3200_str_Nombre_del_cliente,shw1200_dbl_Saldo"
        << "1|301|Pedro Sosa|1";
    QTest::newRow("recibos con articulos pendientes")
        << "Select * From vwSaldosArticulosXRecibo Where shw1200_dbl_Saldo > 0"
        << "hidReciboID,shw1200_int_Recibo,shw3200_str_Nombre_del_cliente,shw1200_dbl_Saldo"
        << "2|202|Eva Pérez|2";
    QTest::newRow("notas por pagar del proveedor")
        << "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
           "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
           "vwSaldosXNotaIngreso Where hidProveedorID = 1 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0 "
        << "hidID,shw1200_int_No_Nota,shw1200_dat_Fecha,shw2500_str_Descripcion_general,shw1200_dbl_Saldo"
        << "2|402|20/01/2026|Compra de estufas|0.50";
    QTest::newRow("notas por pagar de otro proveedor")
        << "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
           "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
           "vwSaldosXNotaIngreso Where hidProveedorID = 2 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0 "
        << "hidID,shw1200_dbl_Saldo"
        << "3|280.00";
}

void TstTraductor::vistasDeBusqueda() {
    comprobarLectura();
}

// The conditions the search screen appends from its boxes: " Where " or " And " after the caller's
// query, a text box as a contains match without regard to case or accents, a date box as #d/m/y#
// (or the bare column when its date was not valid), any other box as "= number".
void TstTraductor::filtrosDeLaBusqueda_data() {
    columnasDeLectura();
    QTest::newRow("texto en minusculas") << "Select * From vwBuscaCliente Where shw2200_str_Apellidos Like "
                                            "'%muñoz%'"
                                         << "hidID"
                                         << "1";
    QTest::newRow("dos cajas de texto")
        << "Select * From vwBuscaCliente Where shw680_str_Codigo Like '%g%' And "
           "shw2200_str_Nombres Like '%JOSÉ%'"
        << "hidID"
        << "4";
    QTest::newRow("tras el Where de quien llama")
        << "Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0 And shw3000_str_Nombre_del_cliente "
           "Like '%garcía%'"
        << "hidID"
        << "3";
    QTest::newRow("fecha dd/mm/aaaa") << "Select * From vwBuscaRecibo Where shw1100_dat_Fecha = #10/02/2026#"
                                      << "hidID"
                                      << "1";
    QTest::newRow("fecha d/m/aaaa") << "Select * From vwBuscaRecibo Where shw1100_dat_Fecha = #1/3/2026#"
                                    << "hidID"
                                    << "2";
    QTest::newRow("fecha de solicitud")
        << "Select * From vwBuscaSolicitud Where shw1100_dat_Fecha = #5/1/2026#"
        << "hidID"
        << "1";
    QTest::newRow("fecha invalida en la ultima caja") << "Select * From vwBuscaRecibo Where shw1100_dat_Fecha"
                                                      << "hidID"
                                                      << "1;2";
    QTest::newRow("fecha invalida antes de otra caja")
        << "Select * From vwBuscaRecibo Where shw1100_dat_Fecha And shw3000_str_Nombre Like '%eva%'"
        << "hidID"
        << "2";
    QTest::newRow("numero entero") << "Select * From vwBuscaNotaIngreso Where shw1100_int_No_Factura = 402"
                                   << "hidID"
                                   << "2";
    QTest::newRow("numero con decimales")
        << "Select * From vwBuscaDocumento Where shw1200_dbl_Valor = 18801.5"
        << "hidID"
        << "1";
    QTest::newRow("texto no numerico vale 0") << "Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo = 0"
                                              << "hidID"
                                              << "3";
    QTest::newRow("texto y numero")
        << "Select * From vwBuscaArticulo Where shw3800_str_Descripcion_del_articulo "
           "Like '%REFRI%' And shw1000_dbl_Existencia = 4"
        << "hidID"
        << "1";
    QTest::newRow("lista de pendientes")
        << "Select * From vwSaldosArticulosXFactura Where shw1200_dbl_Saldo > 0 "
           "And shw3200_str_Nombre_del_cliente Like '%sosa%'"
        << "hidFacturaID"
        << "1";
    QTest::newRow("notas por pagar por descripcion")
        << "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
           "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
           "vwSaldosXNotaIngreso Where hidProveedorID = 1 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0  "
           "And shw2500_str_Descripcion_general Like '%ESTUFAS%'"
        << "hidID"
        << "2";
    QTest::newRow("notas por pagar por fecha")
        << "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
           "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
           "vwSaldosXNotaIngreso Where hidProveedorID = 1 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0  "
           "And shw1200_dat_Fecha = #20/01/2026#"
        << "hidID"
        << "2";
    QTest::newRow("notas por pagar por saldo")
        << "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
           "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
           "vwSaldosXNotaIngreso Where hidProveedorID = 1 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0  "
           "And shw1200_dbl_Saldo = 0.5"
        << "hidID"
        << "2";
}

void TstTraductor::filtrosDeLaBusqueda() {
    comprobarLectura();
}

// The writes the screens send through Execute: the count of rows it reports, and the table as a
// look straight at the file finds it afterwards.
void TstTraductor::escrituras_data() {
    QTest::addColumn<QString>("sentencia");
    QTest::addColumn<int>("afectadas");
    QTest::addColumn<QString>("comprobacion"); // SQLite's own SQL, read past the store
    QTest::addColumn<QString>("resultado");

    const QString clientes =
        QStringLiteral("SELECT group_concat(ClienteID || ':' || Activo || ':' || ifnull(NIT, '-'), ' ') FROM "
                       "(SELECT * FROM Cliente ORDER BY ClienteID)");
    QTest::newRow("desactivar cliente") << "Update Cliente Set Activo = 0 Where ClienteID = 2" << 1
                                        << clientes << "1:1:1234567-8 2:0:- 3:0:- 4:1:-";
    QTest::newRow("NIT del cliente") << "Update Cliente Set NIT = 'C/F' Where ClienteID = 2" << 1 << clientes
                                     << "1:1:1234567-8 2:1:C/F 3:0:- 4:1:-";
    QTest::newRow("eliminar cliente")
        << "Delete From Cliente Where ClienteID = 4" << 1 << clientes << "1:1:1234567-8 2:1:- 3:0:-";
    QTest::newRow("desactivar fiador")
        << "Update Fiador Set Activo = 0 Where FiadorID = 2" << 1
        << "SELECT group_concat(FiadorID || ':' || Activo, ' ') FROM (SELECT * FROM Fiador ORDER BY FiadorID)"
        << "1:1 2:0 3:0";
    QTest::newRow("eliminar fiador")
        << "Delete From Fiador Where FiadorID = 2" << 1
        << "SELECT group_concat(FiadorID, ' ') FROM (SELECT * FROM Fiador ORDER BY "
           "FiadorID)"
        << "1 3";

    const QString historial =
        QStringLiteral("SELECT group_concat(ClienteID || '|' || Fecha || '|' || Descripcion || '|' || "
                       "printf('%.2f', Valor) || '|' || ClasificacionID, ';') FROM (SELECT * FROM "
                       "ClienteHistorial ORDER BY ClienteHistorialID)");
    QTest::newRow("borrar historial") << "Delete From ClienteHistorial Where ClienteID = 1" << 2 << historial
                                      << "2|2025-07-01|Referencia|0.00|2";
    QTest::newRow("linea de historial")
        << "Insert Into ClienteHistorial (ClienteID, Fecha, Descripcion, Valor, ClasificacionID) VALUES "
           "(2,'22/11/2026','Pago atrasado',75.50,4)"
        << 1 << historial
        << "1|2025-06-01|Pago puntual|0.00|1;1|2025-09-15|Atraso de "
           "cuota|150.75|3;2|2025-07-01|Referencia|0.00|2;"
           "2|2026-11-22|Pago atrasado|75.50|4";

    QTest::newRow("mora acumulada") << "Update Solicitud Set Mora = Mora + 25.50 Where SolicitudID = 1" << 1
                                    << "SELECT group_concat(SolicitudID || ':' || printf('%.2f', Mora), ' ') "
                                       "FROM (SELECT * FROM Solicitud "
                                       "ORDER BY SolicitudID)"
                                    << "1:65.50 2:0.00 3:0.00";
    QTest::newRow("factura impresa") << "Update Factura Set Estado = 1 Where FacturaID = 1" << 1
                                     << "SELECT group_concat(FacturaID || ':' || Estado) FROM Factura"
                                     << "1:1";

    const QString lineasSolicitud = QStringLiteral(
        "SELECT group_concat(SolicitudID || '|' || ArticuloID || '|' || Cantidad || '|' || printf('%.2f', "
        "Precio), ';') FROM (SELECT * FROM SolicitudDetalle ORDER BY SolicitudDetalleID)");
    QTest::newRow("vaciar lineas de la solicitud")
        << "Delete * From SolicitudDetalle Where SolicitudID = 1" << 2 << lineasSolicitud << "2|3|1|200.00";
    QTest::newRow("linea de solicitud")
        << "Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, "
           "Precio) VALUES (3,2,1,1700.00)"
        << 1 << lineasSolicitud << "1|1|1|3500.00;1|2|2|3400.00;2|3|1|200.00;3|2|1|1700.00";
    QTest::newRow("linea de solicitud leida de la base")
        << "Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES "
           "(3,1,2.00,7000.00)"
        << 1 << lineasSolicitud << "1|1|1|3500.00;1|2|2|3400.00;2|3|1|200.00;3|1|2|7000.00";
    QTest::newRow("linea de solicitud de centavos")
        << "Insert Into SolicitudDetalle (SolicitudID, ArticuloID, Cantidad, Precio) VALUES (3,3,1,.50)" << 1
        << lineasSolicitud << "1|1|1|3500.00;1|2|2|3400.00;2|3|1|200.00;3|3|1|0.50";
    QTest::newRow("eliminar lineas de la solicitud") << "Delete From SolicitudDetalle Where SolicitudID = 2"
                                                     << 1 << lineasSolicitud << "1|1|1|3500.00;1|2|2|3400.00";
    QTest::newRow("eliminar solicitud")
        << "Delete From Solicitud Where SolicitudID = 3" << 1
        << "SELECT group_concat(SolicitudID, ' ') FROM (SELECT * FROM Solicitud ORDER BY SolicitudID)"
        << "1 2";

    const QString lineasRecibo = QStringLiteral(
        "SELECT group_concat(ReciboID || '|' || ConceptoID || '|' || ArticuloID || '|' || Cantidad || '|' || "
        "printf('%.2f', Valor), ';') FROM (SELECT * FROM ReciboDetalle ORDER BY ReciboDetalleID)");
    QTest::newRow("vaciar lineas del recibo") << "Delete * From ReciboDetalle Where ReciboID = 1" << 2
                                              << lineasRecibo << "2|0|3|2|200.00;2|7|0|1|25.00";
    QTest::newRow("linea de concepto del recibo")
        << "Insert Into ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES "
           "(1,3,0,1,600.00)"
        << 1 << lineasRecibo << "1|1|0|1|500.00;1|4|0|1|15.00;2|0|3|2|200.00;2|7|0|1|25.00;1|3|0|1|600.00";
    QTest::newRow("linea de articulo del recibo")
        << "Insert Into ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES "
           "(2,0,1,1,3000.00)"
        << 1 << lineasRecibo << "1|1|0|1|500.00;1|4|0|1|15.00;2|0|3|2|200.00;2|7|0|1|25.00;2|0|1|1|3000.00";

    const QString lineasFactura = QStringLiteral(
        "SELECT group_concat(FacturaID || '|' || ArticuloID || '|' || ConceptoID || '|' || Cantidad || '|' "
        "|| "
        "EsCredito || '|' || printf('%.2f', Precio), ';') FROM (SELECT * FROM FacturaDetalle ORDER BY "
        "FacturaDetalleID)");
    QTest::newRow("vaciar lineas de la factura")
        << "Delete * From FacturaDetalle Where FacturaID = 1" << 2 << lineasFactura << "";
    QTest::newRow("linea de articulo de la factura")
        << "Insert Into FacturaDetalle (FacturaID, ArticuloID, Cantidad, EsCredito, Precio) VALUES "
           "(1,1,1,0,3000.00)"
        << 1 << lineasFactura << "1|2|0|2|0|900.00;1|0|7|1|0|100.00;1|1|0|1|0|3000.00";
    QTest::newRow("linea de la solicitud en la factura")
        << "Insert Into FacturaDetalle (FacturaID, ArticuloID, Cantidad, EsCredito, Precio) VALUES "
           "(1,2,2,1,1700.00)"
        << 1 << lineasFactura << "1|2|0|2|0|900.00;1|0|7|1|0|100.00;1|2|0|2|1|1700.00";
    QTest::newRow("linea de concepto de la factura")
        << "Insert Into FacturaDetalle (FacturaID, ConceptoID, Cantidad, EsCredito, Precio) VALUES "
           "(1,8,1,0,75.00)"
        << 1 << lineasFactura << "1|2|0|2|0|900.00;1|0|7|1|0|100.00;1|0|8|1|0|75.00";

    const QString lineasIngreso =
        QStringLiteral("SELECT group_concat(IngresoID || '|' || ArticuloID || '|' || Cantidad || '|' || "
                       "printf('%.2f', Costo), "
                       "';') FROM (SELECT * FROM NotaIngresoDetalle ORDER BY NotaIngresoDetalleID)");
    QTest::newRow("vaciar lineas de la nota de ingreso")
        << "Delete From NotaIngresoDetalle Where IngresoID = 1" << 2 << lineasIngreso
        << "2|2|4|1200.50;3|3|2|140.00";
    QTest::newRow("linea de nota de ingreso")
        << "Insert Into NotaIngresoDetalle (IngresoID, ArticuloID, Cantidad, "
           "Costo) VALUES (3,1,3,2450.75)"
        << 1 << lineasIngreso
        << "1|1|5|2500.00;1|3|10|150.00;2|2|4|1200.50;3|3|2|140.00;3|1|3|"
           "2450.75";
    QTest::newRow("eliminar lineas de la nota de ingreso")
        << "Delete * From NotaIngresoDetalle Where IngresoID = 3" << 1 << lineasIngreso
        << "1|1|5|2500.00;1|3|10|150.00;2|2|4|1200.50";
    QTest::newRow("eliminar nota de ingreso")
        << "Delete * From NotaIngreso Where IngresoID = 3" << 1
        << "SELECT group_concat(IngresoID, ' ') FROM (SELECT * FROM NotaIngreso ORDER BY IngresoID)"
        << "1 2";

    const QString lineasEnvio = QStringLiteral(
        "SELECT group_concat(NotaID || '|' || ArticuloID || '|' || Cantidad, ';') FROM (SELECT * "
        "FROM NotaEnvioDetalle ORDER BY NotaEnvioDetalleID)");
    QTest::newRow("vaciar lineas de la nota de envio")
        << "Delete From NotaEnvioDetalle Where NotaID = 1" << 1 << lineasEnvio << "2|2|1";
    QTest::newRow("linea de nota de envio")
        << "Insert Into NotaEnvioDetalle (NotaID, ArticuloID, Cantidad) VALUES (1,2,2)" << 1 << lineasEnvio
        << "1|1|1;2|2|1;1|2|2";

    const QString lineasDocumento = QStringLiteral(
        "SELECT group_concat(DocumentoID || '|' || IngresoID || '|' || printf('%.2f', Valor), ';') "
        "FROM (SELECT * FROM DocumentoDetalle ORDER BY DocumentoDetalleID)");
    QTest::newRow("vaciar lineas del documento")
        << "Delete From DocumentoDetalle Where DocumentoID = 1" << 2 << lineasDocumento << "";
    QTest::newRow("linea de documento")
        << "Insert Into DocumentoDetalle (DocumentoID, IngresoID, Valor) VALUES (1,3,280.00)" << 1
        << lineasDocumento << "1|1|14000.00;1|2|4801.50;1|3|280.00";
    QTest::newRow("eliminar lineas del documento")
        << "Delete * From DocumentoDetalle Where DocumentoID = 1" << 2 << lineasDocumento << "";
    QTest::newRow("eliminar documento")
        << "Delete * From Documento Where DocumentoID = 1" << 1 << "SELECT count(*) FROM Documento"
        << "0";
}

void TstTraductor::escrituras() {
    QFETCH(QString, sentencia);
    QFETCH(int, afectadas);
    QFETCH(QString, comprobacion);
    QFETCH(QString, resultado);
    TiendaConocida tienda;
    try {
        const QString traduccion = tienda.cn.traducir(sentencia);
        QCOMPARE(comprobada(
                     sentencia, traduccion, [&](const QString& s) { return tienda.cn.traducir(s); }, true),
                 traduccion);
        QCOMPARE(tienda.cn.Execute(sentencia), long(afectadas));
    } catch (const Fallo& f) {
        QFAIL(qPrintable(QStringLiteral("Fallo %1: %2").arg(f.numeroHex(), f.descripcion())));
    }
    QCOMPARE(tienda.base.valor(comprobacion), resultado);
}

// What a hostile clerk could type into a box that the screens splice into a statement, and what the
// translator refuses before anything reaches the database: functions it does not list (SQLite's own
// among them, at any depth), characters the database would read differently, and nesting or length
// beyond anything a screen composes, which would otherwise exhaust the program's stack or memory.
void TstTraductor::refusaLoQueNingunaPantallaEscribe_data() {
    QTest::addColumn<QString>("sentencia");
    QTest::addColumn<QString>("motivo"); // part of the message the clerk reads

    const QString carga = QStringLiteral("load_extension('/tmp/x.so')");
    QTest::newRow("load_extension") << "Select " + carga + " From Banco"
                                    << "load_extension";
    QTest::newRow("load_extension dentro de Format")
        << "Select * From Banco Where Nombre Like '%' & Format(" + carga + ", '#0') & '%'"
        << "load_extension";
    QTest::newRow("load_extension en una subconsulta")
        << "Select * From Banco Where BancoID In (Select BancoID From Banco Where Iif(" + carga +
               ", 1, 0) = 1)"
        << "load_extension";
    QTest::newRow("load_extension como condicion de union")
        << "Select * From Banco B Inner Join Proveedor P On Nz(" + carga + ", 1) = 1"
        << "load_extension";
    QTest::newRow("funcion propia de SQLite") << "Select sqlite_version() From Banco"
                                              << "sqlite_version";
    QTest::newRow("char arma comillas") << "Select * From Banco Where Nombre = char(39)"
                                        << "char";
    QTest::newRow("NUL dentro de un texto")
        << QStringLiteral("Select * From Banco Where Nombre = 'a%1b'").arg(QChar(0)) << "U+0000";
    QTest::newRow("caracter de control")
        << QStringLiteral("Select * From Banco Where Nombre = 'a%1'").arg(QChar(0x1b)) << "U+001b";
    QTest::newRow("digito que no es ASCII")
        << QString::fromUtf8("Select \u0663 From Banco") << "carácter no válido";

    const QString profundo = QStringLiteral("la instrucción anida más de 100 niveles");
    const auto veces = [](const char* pieza, int n) { return QString::fromLatin1(pieza).repeated(n); };
    QTest::newRow("5000 parentesis") << "Select * From Banco Where " + veces("(", 5000) + "1" +
                                            veces(")", 5000)
                                     << profundo;
    QTest::newRow("6000 caracteres en una caja de numeros")
        << "Select * From vwBuscaRecibo Where shw1000_int_Recibo = " + veces("(-", 3000) << profundo;
    QTest::newRow("101 parentesis") << "Select " + veces("(", 101) + "1" + veces(")", 101) + " From Banco"
                                    << profundo;
    QTest::newRow("sumas encadenadas") << "Select 1" + veces(" + 1", 150) + " From Banco" << profundo;
    QTest::newRow("And encadenados") << "Select * From Banco Where" + veces(" BancoID = 1 And", 150) +
                                            " 1 = 1"
                                     << profundo;
    QTest::newRow("Not encadenados") << "Select * From Banco Where" + veces(" Not", 150) + " BancoID = 1"
                                     << profundo;
    QTest::newRow("signos encadenados") << "Select" + veces(" -", 150) + " 1 From Banco" << profundo;
    QTest::newRow("subconsultas anidadas")
        << "Select * From Banco Where BancoID In " +
               veces("(Select BancoID From Banco Where BancoID In ", 60) + "(1)" + veces(")", 60)
        << profundo;
    QTest::newRow("uniones encadenadas")
        << "Select * From Banco B0" + veces(" Inner Join Banco B On 1 = 1", 150) << profundo;
    QTest::newRow("uniones entre parentesis")
        << "Select * From " + veces("(", 150) + "Banco" + veces(")", 150) << profundo;
    QTest::newRow("instruccion mas larga que el maximo")
        << "Select * From Banco Where Nombre Like '%" + veces("x", 100000) + "%'"
        << "la instrucción excede los 100000 caracteres";
    QTest::newRow("Format de un agregado dentro de otro")
        << "Select Format(Format(Sum(BancoID), '#0') & 'x', '#0') From Banco"
        << "agregado";
}

void TstTraductor::refusaLoQueNingunaPantallaEscribe() {
    QFETCH(QString, sentencia);
    QFETCH(QString, motivo);
    try {
        const QString r = traducir(sentencia);
        QFAIL(qPrintable(QStringLiteral("was translated to: ") + r.left(300)));
    } catch (const Fallo& f) {
        QCOMPARE(f.numero(), FalloSintaxis);
        QVERIFY2(f.descripcion().contains(motivo), qPrintable(f.descripcion().left(500)));
        // The message quotes the statement, but never more of it than a message box can show.
        QVERIFY2(f.descripcion().size() < 1000, qPrintable(QString::number(f.descripcion().size())));
    }
}

// Statements a clerk can compose by typing quotes, comment marks and names into the boxes: each one
// translates, and its translation keeps the pieces the parser saw (the check every translation in
// these tests passes); here it is also compared with what it must hold.
void TstTraductor::unLiteralNoMueveLasPiezas_data() {
    QTest::addColumn<QString>("dialecto");
    QTest::addColumn<QString>("contiene");

    // A date pattern's quote once closed the pattern's literal, and "/*" hid the rest of the
    // statement up to a later text, whose end then ran as SQLite's own SQL.
    QTest::newRow("comilla y comentario en un patron de fecha")
        << "Select * From vwBuscaArticulo Where shw3800_str_Descripcion_del_articulo Like '%x%' Or "
           "Format(shw1200_str_Color, '''/*') = '*/ Union Select ClienteID, Nombres, NIT, Limite, 0, 0, 0 "
           "From Cliente --' Or 'a' Like '%'"
        << "strftime('''/*', shw1200_str_Color)";
    QTest::newRow("patron de fecha con comilla") << "Select Format(Fecha, 'dd''mm') From Solicitud"
                                                 << "strftime('%d''%m', Fecha)";
    QTest::newRow("comentario de linea en un texto") << "Select * From Banco Where Nombre = '-- x'"
                                                     << "(Nombre = '-- x')";
    QTest::newRow("punto y coma en un texto") << "Select * From Banco Where Nombre = 'a; Drop Table Banco'"
                                              << "'a; Drop Table Banco'";
    QTest::newRow("marcas de Qt en un texto") << "Select * From Banco Where Nombre = '%1' Or Direccion = '%2'"
                                              << "((Nombre = '%1') OR (Direccion = '%2'))";
    QTest::newRow("comilla en un Like") << "Select * From Banco Where Nombre Like '%O''Brien%'"
                                        << "LIKE '%O''Brien%'";
    QTest::newRow("comillas dobles en un nombre") << "Select [a\"b] From Banco"
                                                  << "SELECT \"a\"\"b\" FROM";
    QTest::newRow("alias que es palabra de SQLite") << "Select Nombre As [limit] From Banco"
                                                    << "AS \"limit\"";
    QTest::newRow("columna que es palabra de SQLite") << "Select Offset From T"
                                                      << "SELECT \"Offset\" FROM";
    // A bracketed name ending in a line break was once written bare, as if it were the name without it.
    QTest::newRow("nombre que termina en salto de linea") << "Select Nombre As [Banco\n] From Banco"
                                                          << "AS \"Banco\n\"";
    QTest::newRow("alias entre comillas") << "Select Nombre As 'a b''c' From Banco"
                                          << "AS \"a b'c\"";
    QTest::newRow("blancos que no son ASCII en un texto")
        << QString::fromUtf8("Select * From Banco Where Nombre = 'a\u00a0\u2028b'")
        << QString::fromUtf8("'a\u00a0\u2028b'");
}

void TstTraductor::unLiteralNoMueveLasPiezas() {
    QFETCH(QString, dialecto);
    QFETCH(QString, contiene);
    const QString r = traducir(dialecto);
    QVERIFY2(r.contains(contiene), qPrintable(r));
}

// Format and & write their argument more than once; nested, the translation once doubled at each
// level (seven Formats in 141 characters took 14 s and 3.6 GB). It grows with the statement now.
void TstTraductor::creceConLaInstruccion_data() {
    QTest::addColumn<QString>("dialecto");

    QString format = QStringLiteral("Limite");
    for (int i = 0; i < 12; ++i)
        format = QStringLiteral("Format(%1, '#,##0.00')").arg(format);
    QTest::newRow("12 Format anidados") << "Select " + format + " From Cliente";
    QString union_ = QStringLiteral("Nombres");
    for (int i = 0; i < 30; ++i)
        union_ = QStringLiteral("(%1 & ' ' & Apellidos) & NIT").arg(union_);
    QTest::newRow("30 & anidados") << "Select " + union_ + " From Cliente";
    QString mezcla = QStringLiteral("Limite");
    for (int i = 0; i < 15; ++i)
        mezcla = QStringLiteral("Format(%1 & '1', '#.00') & Format(Limite + %2, '0')").arg(mezcla).arg(i);
    QTest::newRow("Format y & alternados") << "Select " + mezcla + " From Cliente";
    QString agregado = QStringLiteral("Sum(Limite)");
    for (int i = 0; i < 3; ++i)
        agregado = QStringLiteral("(%1 + Count(*))").arg(agregado);
    QTest::newRow("Format de un agregado") << "Select Format(" + agregado + ", '#,##0.00') From Cliente";
}

void TstTraductor::creceConLaInstruccion() {
    QFETCH(QString, dialecto);
    QString r;
    try {
        r = traducir(dialecto);
    } catch (const Fallo& f) {
        QFAIL(qPrintable(f.descripcion().left(500)));
    }
    QVERIFY2(!r.startsWith(QLatin1Char('(')), qPrintable(r.left(500)));
    QVERIFY2(r.size() <= largoMaximoDeTraduccion(dialecto), qPrintable(QString::number(r.size())));
}

// What the shapes that write an argument once compute, on the database: the same as before.
void TstTraductor::expresionesAnidadas_data() {
    columnasDeLectura();
    QTest::newRow("Format de una operacion")
        << "Select Format(Limite * 2, '#,##0.00') As L From Cliente Where ClienteID = 1"
        << "L"
        << "10,000.00";
    QTest::newRow("Format dentro de &")
        << "Select Nombres & ' (' & Format(Limite / 3, '#0.00') & ')' As N From Cliente Where ClienteID = 1"
        << "N"
        << "Ana (1666.67)";
    QTest::newRow("Format de un Format")
        << "Select Format(Format(Limite / 3, '#0.0') & '5', '#,##0.00') As F From Cliente Where ClienteID = 1"
        << "F"
        << "1,666.75";
    QTest::newRow("Null dentro de &") << "Select (Nombres & NIT) & '|' As N From Cliente Where ClienteID = 2"
                                      << "N"
                                      << "Luis|";
    QTest::newRow("Format de un agregado") << "Select Format(Sum(Limite) / 3, '#,##0.00') As T From Cliente"
                                           << "T"
                                           << "1,666.67";
    QTest::newRow("agregado dentro de &") << "Select Count(*) & ' clientes' As C From Cliente"
                                          << "C"
                                          << "4 clientes";
    QTest::newRow("Format en Where y Order By")
        << "Select ClienteID From Cliente Where Format(Limite + 1, '#0') = '5001' Or ClienteID > 2 "
           "Order By Format(ClienteID * 5, '#0') Desc"
        << "ClienteID"
        << "1;4;3";
}

void TstTraductor::expresionesAnidadas() {
    comprobarLectura();
}

QTEST_GUILESS_MAIN(TstTraductor)
#include "tst_traductor.moc"
