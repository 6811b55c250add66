// The translation of the system's dialect into SQLite's SQL, and what the translator refuses.
#include "store/Fallo.h"
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
};

QString traducir(const QString& sentencia) {
    static const sql::DialectoSQLite sqlite;
    static const CatalogoFijo catalogo;
    return sqlite.traducir(sql::analizar(sentencia), &catalogo);
}

} // namespace

class TstTraductor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void traduce_data();
    void traduce();
    void refusa_data();
    void refusa();
    void sentenciasDelSistema_data();
    void sentenciasDelSistema();
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
        << "SELECT (IFNULL(CASE WHEN typeof(A) = 'real' THEN printf('%.15g', A) ELSE A END, '') || "
           "IFNULL(CASE WHEN typeof((B + C)) = 'real' THEN printf('%.15g', (B + C)) ELSE (B + C) END, '')) "
           "AS Expr1000 FROM T";
    QTest::newRow("resta antes de concatenar")
        << "Select 'Q.' & Total - Pagado From T"
        << "SELECT ('Q.' || IFNULL(CASE WHEN typeof((Total - Pagado)) = 'real' THEN printf('%.15g', (Total - "
           "Pagado)) ELSE (Total - Pagado) END, '')) AS Expr1000 FROM T";
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
        << "SELECT (CASE WHEN (shw1200_dbl_Total - shw1200_dbl_Cancelado) IS NULL THEN NULL ELSE (CASE WHEN "
           "printf('%.2f', (shw1200_dbl_Total - shw1200_dbl_Cancelado)) = '-' || printf('%.2f', 0) THEN "
           "printf('%.2f', "
           "0) ELSE printf('%.2f', (shw1200_dbl_Total - shw1200_dbl_Cancelado)) END) END) AS "
           "shw1200_dbl_Saldo FROM V";
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

// Statements the screens compose, as they stand: each must translate (their results are checked
// against a real database in the connection tests).
void TstTraductor::sentenciasDelSistema_data() {
    QTest::addColumn<QString>("sentencia");
    const char* const sentencias[] = {
        "Select * From Proveedor Where ProveedorID < 0",
        "Select * From Articulo Where ArticuloID <0",
        "Select * From NotaEnvio Where NotaID<0",
        "Select EstadoCivilID From EstadoCivil Where EstadoCivilID<0 ",
        "Select D.DocumentoID, D.NumeroDocumento, D.ProveedorID, P.Nombre, D.Fecha, D.Descripcion From "
        "Documento D INNER "
        "JOIN Proveedor P ON D.ProveedorID = P.ProveedorID Where D.DocumentoID < 0",
        "Select H.Fecha, H.Descripcion, H.Valor, C.ClasificacionID, C.Descripcion as Clasificacion From "
        "ClienteHistorial "
        "H, Clasificacion C Where H.ClasificacionID = C.ClasificacionID And H.ClienteID = 3",
        "Select shw3800_str_Descripcion_del_articulo & ' ' & shw1200_str_Modelo & ' '& shw1200_str_Color as "
        "Descripcion, "
        "shw900_dbl_Costo as Costo, shw1000_dbl_Existencia as Existencia From vwBuscaArticulo Where hidID = "
        "5",
        "Select vwBS.*, S.Descuento From vwBuscaSolicitud vwBS, Solicitud S Where vwBS.hidID = S.SolicitudID "
        "And "
        "vwBS.shw1200_int_Solicitud = 12",
        "Select hidID, shw1200_int_No_Nota, shw1200_dat_Fecha, shw2500_str_Descripcion_general, "
        "Format(shw1200_dbl_Total - shw1200_dbl_Cancelado,'#0.00') as shw1200_dbl_Saldo From "
        "vwSaldosXNotaIngreso Where "
        "hidProveedorID = 2 And shw1200_dbl_Total - shw1200_dbl_Cancelado > 0 ",
        "Select ConceptoID as Codigo, Descripcion From Concepto Where IsNull(Tipo)Order By 2,1",
        "Insert Into ReciboDetalle (ReciboID, ConceptoID, ArticuloID, Cantidad, Valor) VALUES "
        "(4,2,0,1,150.00)",
        "Insert Into FacturaDetalle (FacturaID, ArticuloID, Cantidad, EsCredito, Precio) VALUES "
        "(1,3,2,0,125.50)",
        "Update Cliente Set NIT = 'C/F' Where ClienteID = 9",
        "Select Max(NumeroRecibo) as Maximo From Recibo Where ReciboID>0",
        "Select * From vwBuscaSolicitud Where shw1200_dbl_Saldo <= 0 And shw3000_str_Nombre_del_cliente Like "
        "'%ana%' And "
        "shw1200_int_Solicitud = 0",
    };
    for (const char* s : sentencias)
        QTest::newRow(s) << QString::fromUtf8(s);
}

void TstTraductor::sentenciasDelSistema() {
    QFETCH(QString, sentencia);
    QVERIFY(traducir(sentencia).startsWith(sentencia.section(QLatin1Char(' '), 0, 0).toUpper()));
}

QTEST_GUILESS_MAIN(TstTraductor)
#include "tst_traductor.moc"
