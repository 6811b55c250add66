#include "runtime/Texto.h"

#include <QTest>
#include <stdexcept>

using namespace runtime;

static void filaInStr(const char* nombre, int inicio, const QString& texto, const QString& buscado,
                      int esperado) {
    QTest::newRow(nombre) << inicio << texto << buscado << esperado;
}

class TstTexto : public QObject {
    Q_OBJECT

private slots:
    void cortes_data() {
        QTest::addColumn<QString>("obtenido");
        QTest::addColumn<QString>("esperado");
        QTest::newRow("Mid desde el medio") << Mid(QStringLiteral("abcdef"), 3) << "cdef";
        QTest::newRow("Mid con largo") << Mid(QStringLiteral("abcdef"), 2, 3) << "bcd";
        QTest::newRow("Mid largo pasado el final") << Mid(QStringLiteral("abc"), 2, 10) << "bc";
        QTest::newRow("Mid inicio pasado el final") << Mid(QStringLiteral("abc"), 5) << "";
        QTest::newRow("Mid inicio pasado el final con largo") << Mid(QStringLiteral("abc"), 5, 2) << "";
        QTest::newRow("Left mayor que el texto") << Left(QStringLiteral("abc"), 10) << "abc";
        QTest::newRow("Left cero") << Left(QStringLiteral("abc"), 0) << "";
        QTest::newRow("Right mayor que el texto") << Right(QStringLiteral("abc"), 10) << "abc";
        QTest::newRow("Right") << Right(QStringLiteral("abcdef"), 2) << "ef";
        QTest::newRow("Trim sólo espacios") << Trim(QStringLiteral(" \ta b\t ")) << "\ta b\t";
        QTest::newRow("Replace sin qué buscar") << Replace(QStringLiteral("abc"), QString(), "-") << "abc";
        QTest::newRow("Replace") << Replace(QStringLiteral("a.b.c"), ".", "") << "abc";
        QTest::newRow("Str positivo") << Str(5) << " 5";
        QTest::newRow("Str negativo") << Str(-2.5) << "-2.5";
    }
    void cortes() {
        QFETCH(QString, obtenido);
        QFETCH(QString, esperado);
        QCOMPARE(obtenido, esperado);
    }

    void inStr_data() {
        QTest::addColumn<int>("inicio");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("buscado");
        QTest::addColumn<int>("esperado");
        filaInStr("primera aparición", 1, "abcabc", "bc", 2);
        filaInStr("desde un inicio", 3, "abcabc", "bc", 5);
        filaInStr("inicio en la aparición", 5, "abcabc", "bc", 5);
        filaInStr("no está", 1, "abc", "x", 0);
        filaInStr("distingue mayúsculas", 1, "abc", "B", 0);
        filaInStr("inicio pasado el final", 9, "abc", "a", 0);
        filaInStr("buscado vacío", 2, "abc", "", 2);
    }
    void inStr() {
        QFETCH(int, inicio);
        QFETCH(QString, texto);
        QFETCH(QString, buscado);
        QFETCH(int, esperado);
        QCOMPARE(InStr(inicio, texto, buscado), esperado);
        if (inicio == 1) QCOMPARE(InStr(texto, buscado), esperado);
    }

    void argumentosImposiblesLanzan() {
        const QString texto = QStringLiteral("abc");
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Mid(texto, 0));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Mid(texto, 1, -1));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Left(texto, -1));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, InStr(0, texto, texto));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Space(-1));
    }
};

QTEST_GUILESS_MAIN(TstTexto)
#include "tst_texto.moc"
