#include "shell/controles/SelectorFecha.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "shell/common/Common.h"

#include <QKeyEvent>
#include <QPointer>
#include <stdexcept>

namespace shell {

SelectorFecha::SelectorFecha(QWidget* parent)
    : QDateEdit(parent) {
    setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    setCalendarPopup(true);
    setDate(runtime::Hoy());
    connect(this, &QDateEdit::dateChanged, this, [this] {
        if (cambiar_.isEmpty()) return;
        const QVector<Manejador> copia = cambiar_;
        QPointer<SelectorFecha> vivo(this);
        Common::Manejar([&] {
            for (const Manejador& m : copia) {
                if (!vivo) return;
                m();
            }
        });
    });
}

void SelectorFecha::setValue(const QDate& fecha) {
    if (!fecha.isValid()) throw std::invalid_argument("Valor de propiedad no válido");
    setDate(fecha);
}

void SelectorFecha::setValue(const QString& texto) {
    const auto fecha = runtime::LeerFecha(texto);
    if (!fecha) throw std::invalid_argument("Valor de propiedad no válido");
    setDate(*fecha);
}

void SelectorFecha::setValue(const QVariant& valor) {
    if (valor.typeId() == QMetaType::QDate) return setValue(valor.toDate());
    if (valor.typeId() == QMetaType::QDateTime) return setValue(valor.toDateTime().date());
    setValue(runtime::TextoDe(valor));
}

void SelectorFecha::alCambiar(Manejador manejador) {
    cambiar_ << std::move(manejador);
}

// QDateEdit would take Tab to its next section; the picker is one stop of the screen's tab order.
bool SelectorFecha::focusNextPrevChild(bool siguiente) {
    return QWidget::focusNextPrevChild(siguiente);
}

// The key goes on to the picker, then focus moves on.
void SelectorFecha::keyPressEvent(QKeyEvent* evento) {
    QDateEdit::keyPressEvent(evento);
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) focusNextChild();
}

} // namespace shell
