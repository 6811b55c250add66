#include "ConductorDePantallas.h"

#include "runtime/Conversion.h"
#include "shell/common/Common.h"
#include "shell/marco/Formulario.h"
#include "shell/marco/Marco.h"
#include "store/Recordset.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

Conductor conductor;

void exigir(bool condicion, const QString& que) {
    if (!condicion) throw FalloDeMedicion(que.toStdString());
}

QString textos(shell::Formulario& f) {
    QStringList t{f.objectName()};
    for (const QLabel* l : f.findChildren<QLabel*>())
        if (!l->text().trimmed().isEmpty()) t << l->text().trimmed();
    return t.join(QStringLiteral(" | "));
}

void pulsarEn(shell::Formulario& f, const QString& caption) {
    for (QPushButton* b : f.findChildren<QPushButton*>())
        if (b->text() == caption) return b->click();
    conductor.inesperadas << f.objectName() + QStringLiteral(" without a button ") + caption;
    f.Unload();
}

void instalarConductor(std::function<bool(shell::Formulario&)> primero) {
    Common::InstalarConductorModal([primero = std::move(primero)](shell::Formulario& f) {
        if (primero && primero(f)) return;
        if (!conductor.esperadas.empty()) {
            const auto responder = conductor.esperadas.front();
            conductor.esperadas.pop_front();
            if (responder(f)) return;
        }
        conductor.inesperadas << textos(f);
        f.Unload();
    });
    Common::InstalarGanchoFatal([](const store::Fallo& fallo) {
        conductor.inesperadas << QStringLiteral("unhandled failure: ") + fallo.descripcion();
    });
}

void sinPantallasInesperadas(const QString& paso) {
    if (conductor.inesperadas.isEmpty() && conductor.esperadas.empty()) return;
    QString que = paso + QStringLiteral(": ") + conductor.inesperadas.join(QStringLiteral("; "));
    if (!conductor.esperadas.empty())
        que += QStringLiteral(" (%1 expected screens not shown)").arg(conductor.esperadas.size());
    conductor.inesperadas.clear();
    conductor.esperadas.clear();
    throw FalloDeMedicion(que.toStdString());
}

void tecla(QWidget* control, Qt::Key k, const QString& texto) {
    QKeyEvent abajo(QEvent::KeyPress, k, Qt::NoModifier, texto);
    QCoreApplication::sendEvent(control, &abajo);
    QKeyEvent arriba(QEvent::KeyRelease, k, Qt::NoModifier, texto);
    QCoreApplication::sendEvent(control, &arriba);
}

int salidaPorRazones(std::initializer_list<std::pair<const char*, double>> razones, double tope) {
    bool bien = true;
    for (const auto& [nombre, razon] : razones)
        if (razon > tope) {
            std::printf("%s: ratio %.2f is above %.1f\n", nombre, razon, tope);
            bien = false;
        }
    return bien ? 0 : 1;
}

QPushButton* botonVisible(shell::Marco& pantalla, const QString& caption) {
    for (QPushButton* b : pantalla.cmdBoton)
        if (b && b->isVisible() && b->text() == caption) return b;
    throw FalloDeMedicion(("no button " + caption).toStdString());
}

bool ponerEnFila(store::Recordset& rs, const QVariant& clave) {
    const int posicion = int(clave.toLongLong());
    if (posicion >= 1 && posicion <= rs.RecordCount()) {
        rs.setAbsolutePosition(posicion);
        if (rs.Fields(0).Value().toLongLong() == clave.toLongLong()) return true;
    }
    rs.MoveFirst();
    rs.Find(QStringLiteral("hidID = ") + runtime::TextoDe(clave));
    return !rs.Eof();
}
