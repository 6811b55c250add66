#include "runtime/Formato.h"

#include <QDateTime>
#include <QTest>

using namespace runtime;

namespace {

void filaNumero(const char* nombre, double valor, const QString& patron, const QString& esperado) {
    QTest::newRow(nombre) << valor << patron << esperado;
}

void filaValor(const char* nombre, const QVariant& valor, const QString& patron, const QString& esperado) {
    QTest::newRow(nombre) << valor << patron << esperado;
}

void filaFecha(const char* nombre, const QString& patron, const QString& esperado) {
    QTest::newRow(nombre) << patron << esperado;
}

} // namespace

class TstFormato : public QObject {
    Q_OBJECT

private slots:
    void numero_data() {
        QTest::addColumn<double>("valor");
        QTest::addColumn<QString>("patron");
        QTest::addColumn<QString>("esperado");
        filaNumero("1.005 sube", 1.005, "#0.00", "1.01");
        filaNumero("2.675 sube", 2.675, "#0.00", "2.68");
        filaNumero("mitad a entero", 0.5, "#0", "1");
        filaNumero("mitad negativa", -2.5, "#0", "-3");
        filaNumero("sin cero entero", 0.5, "#.00", ".50");
        filaNumero("miles", 1234.5, "#,##0.00", "1,234.50");
        filaNumero("millones", 1234567.891, "#,##0.00", "1,234,567.89");
        filaNumero("miles negativos", -1234.5, "#,##0.00", "-1,234.50");
        filaNumero("cero con #", 0.0, "#", "");
        filaNumero("cero con #0", 0.0, "#0", "0");
        filaNumero("decimales fijos", 22.75, "0.00", "22.75");
        filaNumero("entero con #", 123.4, "#", "123");
        filaNumero("ceros a la izquierda", 5.0, "000", "005");
        filaNumero("acarreo", 9.995, "#0.00", "10.00");
        filaNumero("acarreo con miles", 999.995, "#,##0.00", "1,000.00");
        filaNumero("redondea a cero sin signo", -0.001, "#0.00", "0.00");
        filaNumero("mitad negativa en decimales", -0.125, "0.00", "-0.13");
        filaNumero("decimal opcional", 1.5, "0.0#", "1.5");
        filaNumero("prefijo de moneda", 1500.0, "Q #,##0.00", "Q 1,500.00");
        filaNumero("signo antes del prefijo", -5.0, "Q0.00", "-Q5.00");
        filaNumero("sin patrón", 22.75, "", "22.75");
        filaNumero("patrón de fecha", 1500.0, "dd/mm/yyyy", "1500");
    }
    void numero() {
        QFETCH(double, valor);
        QFETCH(QString, patron);
        QFETCH(QString, esperado);
        QCOMPARE(Format(valor, patron), esperado);
    }

    void valor_data() {
        QTest::addColumn<QVariant>("valor");
        QTest::addColumn<QString>("patron");
        QTest::addColumn<QString>("esperado");
        const QVariant nulo(QMetaType(QMetaType::Double)); // the Null a query returns
        const QDate fecha(2026, 11, 22);
        filaValor("Empty", QVariant(), "#,##0.00", "");
        filaValor("Null numérico", nulo, "#0", "");
        filaValor("Null fecha", nulo, "dd/mm/yyyy", "");
        filaValor("fecha inválida", QDate(), "dd/mm/yyyy", "");
        filaValor("entero", 1234, "#,##0", "1,234");
        filaValor("verdadero", true, "0", "-1");
        filaValor("texto con miles", QStringLiteral("1,500.5"), "#,##0.00", "1,500.50");
        filaValor("texto numérico", QStringLiteral(" 2.675 "), "#0.00", "2.68");
        filaValor("texto queda igual", QStringLiteral("hola"), "#0.00", "hola");
        filaValor("texto fecha, patrón numérico", QStringLiteral("22/11/2026"), "#0.00", "22/11/2026");
        filaValor("texto fecha", QStringLiteral("5-1-2026"), "dd/mm/yyyy", "05/01/2026");
        filaValor("fecha", fecha, "mmmm", "Noviembre");
        filaValor("fecha, patrón numérico", fecha, "#0.00", "22/11/2026");
        filaValor("instante", QDateTime(fecha, QTime(9, 15)), "dd/mm/yyyy", "22/11/2026");
    }
    void valor() {
        QFETCH(QVariant, valor);
        QFETCH(QString, patron);
        QFETCH(QString, esperado);
        QCOMPARE(Format(valor, patron), esperado);
    }

    void fecha_data() {
        QTest::addColumn<QString>("patron");
        QTest::addColumn<QString>("esperado");
        // Monday 5 January 2026.
        filaFecha("día/mes/año", "dd/mm/yyyy", "05/01/2026");
        filaFecha("MM es mes", "dd/MM/yyyy", "05/01/2026");
        filaFecha("formas cortas", "d/m/yyyy", "5/1/2026");
        filaFecha("año corto", "dd-mm-yy", "05-01-26");
        filaFecha("mes en letras", "mmmm yyyy", "Enero 2026");
        filaFecha("mes abreviado", "mmm", "Ene");
        filaFecha("día de la semana", "dddd", "Lunes");
        filaFecha("literal escapado", "d \\de mmmm", "5 de Enero");
        filaFecha("literal entre comillas", "\"día\" d", "día 5");
    }
    void fecha() {
        QFETCH(QString, patron);
        QFETCH(QString, esperado);
        QCOMPARE(Format(QVariant(QDate(2026, 1, 5)), patron), esperado);
    }

    void mesEnLetras_data() {
        QTest::addColumn<int>("mes");
        QTest::addColumn<QString>("esperado");
        QTest::newRow("enero") << 1 << "Enero";
        QTest::newRow("septiembre") << 9 << "Septiembre";
        QTest::newRow("diciembre") << 12 << "Diciembre";
        QTest::newRow("cero") << 0 << "";
        QTest::newRow("trece") << 13 << "";
    }
    void mesEnLetras() {
        QFETCH(int, mes);
        QFETCH(QString, esperado);
        QCOMPARE(MesEnLetras(mes), esperado);
    }
};

QTEST_GUILESS_MAIN(TstFormato)
#include "tst_formato.moc"
