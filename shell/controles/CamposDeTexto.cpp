#include "shell/controles/CamposDeTexto.h"

#include "runtime/Conversion.h"
#include "runtime/Fechas.h"
#include "runtime/Formato.h"

#include <QChar>

namespace shell {

QString TextoNumero(const QString& texto) {
    return runtime::Format(runtime::Val(texto), QStringLiteral("#0.00"));
}

QString TextoEntero(const QString& texto) {
    return runtime::TextoDe(runtime::Val(texto));
}

QString TextoFechaDe(const QString& texto) {
    const auto fecha = runtime::LeerFecha(texto);
    return fecha ? runtime::TextoFecha(*fecha) : QString();
}

void SeleccionarTodoAlEntrar(ControlDeTexto* campo) {
    campo->alRecibirFoco([campo] {
        campo->setSelStart(0);
        campo->setSelLength(static_cast<int>(campo->Text().size()));
    });
}

void MayusculasAlTeclear(ControlDeTexto* campo) {
    campo->alTeclear([](int& KeyAscii) {
        if (KeyAscii > 0 && KeyAscii <= 0xFFFF)
            KeyAscii = QChar(static_cast<char16_t>(KeyAscii)).toUpper().unicode();
    });
}

void SoloDigitos(ControlDeTexto* campo) {
    campo->alTeclear([](int& KeyAscii) {
        if ((KeyAscii < 48 || KeyAscii > 57) && KeyAscii != 8) KeyAscii = 0;
    });
}

void NumeroAlSalir(ControlDeTexto* campo) {
    campo->alValidar([campo] { campo->setText(TextoNumero(campo->Text())); });
}

void EnteroAlSalir(ControlDeTexto* campo) {
    campo->alValidar([campo] { campo->setText(TextoEntero(campo->Text())); });
}

void FechaAlSalir(ControlDeTexto* campo) {
    campo->alValidar([campo] { campo->setText(TextoFechaDe(campo->Text())); });
}

} // namespace shell
