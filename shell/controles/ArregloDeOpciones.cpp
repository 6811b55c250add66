#include "shell/controles/ArregloDeOpciones.h"

#include "shell/common/Common.h"
#include "shell/common/Twips.h"

namespace shell {

ArregloDeOpciones::ArregloDeOpciones(const QString& nombre, QObject* parent)
    : QObject(parent)
    , nombre_(nombre) {
    setObjectName(nombre);
    grupo_.setExclusive(true);
}

QRadioButton* ArregloDeOpciones::agregar(int indice, const QString& caption, QWidget* padre, double left,
                                         double top, double ancho, double alto) {
    auto* boton = new QRadioButton(caption, padre);
    boton->setObjectName(QStringLiteral("%1(%2)").arg(nombre_).arg(indice));
    colocar(boton, left, top, ancho, alto);
    while (botones_.size() <= indice)
        botones_ << nullptr;
    botones_[indice] = boton;
    grupo_.addButton(boton, indice);
    connect(boton, &QRadioButton::toggled, this, [this, indice](bool elegida) {
        if (elegida && clic_) Common::Manejar([&] { clic_(indice); });
    });
    return boton;
}

int ArregloDeOpciones::Valor() const {
    return grupo_.checkedId();
}

void ArregloDeOpciones::Seleccionar(int indice) {
    botones_.at(indice)->setChecked(true);
}

void ArregloDeOpciones::Ninguna() {
    // The checked option of an exclusive group cannot be unchecked while the group is exclusive.
    grupo_.setExclusive(false);
    for (QRadioButton* b : botones_)
        if (b) b->setChecked(false);
    grupo_.setExclusive(true);
}

} // namespace shell
