// The statement console, called as a function and as the program an administrator runs.
#include "BaseDePrueba.h"
#include "Consola.h"

#include <QProcess>
#include <QtTest>

class TstConsola : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void imprime_data();
    void imprime();
    void falloPorErrorEstandar();
    void leeLaEntradaEstandar();
    void programa();

private:
    std::unique_ptr<BaseDePrueba> base_;
};

void TstConsola::init() {
    base_ = std::make_unique<BaseDePrueba>(true);
    base_->sqlite(QStringLiteral(
        "INSERT INTO Banco (Nombre, Direccion) VALUES ('Banrural', NULL), ('Bantrab', 'Zona 1');"
        "INSERT INTO Recibo (NumeroRecibo, Fecha, BancoID, Efectivo) VALUES (7, '2026-01-05', 1, 22.75);"));
}

void TstConsola::cleanup() {
    base_.reset();
}

void TstConsola::imprime_data() {
    QTest::addColumn<QStringList>("sentencias");
    QTest::addColumn<QString>("salida");
    QTest::newRow("filas bajo los nombres")
        << QStringList{"Select BancoID, Nombre & ' ' & Direccion as Banco From Banco Order By 1"}
        << "BancoID\tBanco\n1\tBanrural \n2\tBantrab Zona 1\n";
    QTest::newRow("fechas e importes")
        << QStringList{"Select Fecha, Efectivo From Recibo"} << "Fecha\tEfectivo\n05/01/2026\t22.75\n";
    QTest::newRow("sin filas") << QStringList{"Select * From Banco Where BancoID < 0"}
                               << "BancoID\tNombre\tDireccion\n";
    QTest::newRow("cambios") << QStringList{"Update Banco Set Direccion = 'Zona 4' Where BancoID > 0",
                                            "Delete * From Recibo Where ReciboID = 9",
                                            "Select Count(*) as N From Banco Where Direccion Like '%zona%'"}
                             << "2 filas afectadas\n0 filas afectadas\nN\n2\n";
}

void TstConsola::imprime() {
    QFETCH(QStringList, sentencias);
    QFETCH(QString, salida);
    QString out, err;
    QTextStream so(&out), se(&err);
    QCOMPARE(ejecutarSentencias(sentencias, so, se), 0);
    QCOMPARE(out, salida);
    QCOMPARE(err, QString());
}

// The first failure stops the run: what ran before it stays, nothing after it runs. The failure is the
// schema's guard of a bank a receipt names, reported by its number and its own text.
void TstConsola::falloPorErrorEstandar() {
    QString out, err;
    QTextStream so(&out), se(&err);
    const QStringList sentencias{"Insert Into Banco (Nombre) Values ('BAM')",
                                 "Delete From Banco Where BancoID = 1", "Delete From Banco"};
    QCOMPARE(ejecutarSentencias(sentencias, so, se), 1);
    QCOMPARE(out, QStringLiteral("1 fila afectada\n"));
    QCOMPARE(err,
             QStringLiteral(
                 "Error 80004005: No puede eliminarse el banco: hay recibos o facturas que lo nombran.\n"));
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco")), QStringLiteral("3"));
}

void TstConsola::leeLaEntradaEstandar() {
    QString entrada = QStringLiteral(
        "Select Nombre From Banco Where BancoID = 2\n\n   \nSelect Nombre From Banco Where BancoID = 1\n");
    QString out, err;
    QTextStream si(&entrada), so(&out), se(&err);
    QCOMPARE(ejecutarEntrada(si, so, se), 0);
    QCOMPARE(out, QStringLiteral("Nombre\nBantrab\nNombre\nBanrural\n"));
}

void TstConsola::programa() {
    QProcess p;
    p.start(QStringLiteral(CC_CONSOLA),
            {QStringLiteral("-e"), QStringLiteral("Select Nombre From Banco Where BancoID = 2"),
             QStringLiteral("-e"), QStringLiteral("Select * From Banco; Delete From Banco")});
    QVERIFY(p.waitForFinished(30000));
    QCOMPARE(p.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(p.readAllStandardOutput()), QStringLiteral("Nombre\nBantrab\n"));
    const QString err = QString::fromUtf8(p.readAllStandardError());
    QVERIFY2(err.startsWith(QLatin1String("Error 80040E14: ")), qPrintable(err));
    QCOMPARE(base_->valor(QStringLiteral("SELECT count(*) FROM Banco")), QStringLiteral("2"));
}

QTEST_GUILESS_MAIN(TstConsola)
#include "tst_consola.moc"
