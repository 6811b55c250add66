#include "shell/marco/DialogoDeLinea.h"

#include "shell/common/Common.h"

namespace shell {

DialogoDeLinea::DialogoDeLinea(const QString& titulo, double ancho, double alto, int elementosAlAnular,
                               QWidget* parent)
    : Marco(titulo, ancho, alto, parent)
    , elementosAlAnular_(elementosAlAnular) {
    cmdClose->setToolTip(QStringLiteral("Cerrar esta ventana"));
    setKeyPreview(true);
}

void DialogoDeLinea::AjustarPantalla() {
    Marco::AjustarPantalla();
    HabilitarEdicion(true);
}

void DialogoDeLinea::Anular() {
    Common::Parametros.ReDim(elementosAlAnular_);
    Unload();
}

} // namespace shell
