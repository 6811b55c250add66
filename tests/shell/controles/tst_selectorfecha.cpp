// The date picker: today from the program's clock, dates given as text read day first, the arrow keys
// of a person changing the day, and Enter moving on once.
#include "EntornoDePantallas.h"
#include "VentanaDePrueba.h"
#include "runtime/Fechas.h"
#include "shell/common/Common.h"
#include "shell/controles/CajaTexto.h"
#include "shell/controles/SelectorFecha.h"

#include <QLineEdit>
#include <QtTest>

using namespace shell;

class TstSelectorFecha : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { entorno_ = std::make_unique<EntornoDePantallas>(); }
    void cleanup() { entorno_.reset(); }
    void fechaDada_data();
    void fechaDada();
    void flechasYEnter_data();
    void flechasYEnter();

private:
    std::unique_ptr<EntornoDePantallas> entorno_;
};

void TstSelectorFecha::fechaDada_data() {
    QTest::addColumn<QVariant>("dado");
    QTest::addColumn<QDate>("queda");
    QTest::addColumn<bool>("falla");
    const QDate antes(2026, 11, 22);
    QTest::newRow("texto día primero, con guiones") << QVariant("5-1-2026") << QDate(2026, 1, 5) << false;
    QTest::newRow("una fecha") << QVariant(QDate(2024, 2, 29)) << QDate(2024, 2, 29) << false;
    QTest::newRow("fecha y hora") << QVariant(QDateTime(QDate(2027, 3, 1), QTime(8, 30))) << QDate(2027, 3, 1)
                                  << false;
    QTest::newRow("día que no existe") << QVariant("31/02/2026") << antes << true;
    QTest::newRow("texto vacío") << QVariant(QString()) << antes << true;
    QTest::newRow("nulo") << QVariant() << antes << true;
}

// A new picker shows today by the program's clock, day first. A value that is no date is an error of
// the program: it reaches the fatal path, the date stays.
void TstSelectorFecha::fechaDada() {
    entorno_->esperaFallos(); // checked below
    QFETCH(QVariant, dado);
    QFETCH(QDate, queda);
    QFETCH(bool, falla);
    runtime::RelojFijo reloj(QDateTime(QDate(2026, 2, 28), QTime(23, 59)));
    SelectorFecha dpFecha;
    QCOMPARE(dpFecha.findChild<QLineEdit*>()->text(), QStringLiteral("28/02/2026"));
    dpFecha.setValue("22/11/2026");
    Common::Manejar([&] { dpFecha.setValue(dado); });
    QCOMPARE(dpFecha.Value(), queda);
    QCOMPARE(entorno_->fallos.size(), falla ? 1 : 0);
}

void TstSelectorFecha::flechasYEnter_data() {
    QTest::addColumn<bool>("keyPreview");
    QTest::addColumn<int>("tecla");
    QTest::newRow("Enter en una pantalla donde Enter avanza") << true << int(Qt::Key_Return);
    QTest::newRow("Enter en una pantalla sin esa regla") << false << int(Qt::Key_Return);
    QTest::newRow("Tab sale de una vez, no va al mes") << false << int(Qt::Key_Tab);
}

// The arrow keys change the day, each change a Change for the screen; then, from the day section, one
// key takes focus to the next control, not to the month nor two controls on.
void TstSelectorFecha::flechasYEnter() {
    QFETCH(bool, keyPreview);
    QFETCH(int, tecla);
    VentanaDePrueba v(keyPreview);
    auto* dpFecha = v.agregar<SelectorFecha>(QStringLiteral("dpFecha"), 120, 120, 1600, 315);
    auto* txtNumero = v.agregar<CajaTexto>(QStringLiteral("txtNumero"), 120, 480);
    v.agregar<CajaTexto>(QStringLiteral("txtNombre"), 120, 840);
    dpFecha->setValue("20/11/2026");
    QList<QDate> cambios;
    dpFecha->alCambiar([&] { cambios << dpFecha->Value(); });
    QVERIFY(v.mostrar());
    dpFecha->setFocus();
    QTest::keyClick(dpFecha, Qt::Key_Home); // the day section
    QTest::keyClick(dpFecha, Qt::Key_Up);
    QTest::keyClick(dpFecha, Qt::Key_Up);
    QCOMPARE(cambios, (QList<QDate>{QDate(2026, 11, 21), QDate(2026, 11, 22)}));
    QTest::keyClick(dpFecha, Qt::Key(tecla));
    QVERIFY(txtNumero->hasFocus());
    QCOMPARE(dpFecha->Value(), QDate(2026, 11, 22));
}

QTEST_MAIN(TstSelectorFecha)
#include "tst_selectorfecha.moc"
