#include "credit/Personas.h"

#include "runtime/Texto.h"
#include "shell/common/Common.h"
#include "shell/dialogos/Dialogos.h"
#include "store/Adodc.h"
#include "store/Fallo.h"

#include <exception>

namespace credito {

QString ExtendidaSegunRegistro(const QString& registro) {
    return registro.toUpper() == QLatin1String("A-1") ? QStringLiteral("Capital") : QString();
}

void EliminarPersona(shell::Formulario& pantalla, const QString& titulo, store::Adodc& ado,
                     const TablaDePersona& persona) {
    try {
        Common::Parametros.ReDim(2);
        Common::Parametros(1) = persona.opcionDesactivar;
        Common::Parametros(2) = QStringLiteral("Eliminar el registro");
        const QString opcion = Common::ElegirOpcion(titulo, pantalla);
        const auto clave = [&] { return ado.Recordset()->Fields(persona.clave).Value().toString(); };
        if (opcion == persona.opcionDesactivar) {
            Common::DE().CN.Execute(QStringLiteral("Update %1 Set Activo = 0 Where %2 = %3")
                                        .arg(persona.tabla, persona.clave, clave()));
        } else if (opcion == QLatin1String("Eliminar el registro")) {
            Common::DE().CN.Execute(
                QStringLiteral("Delete From %1 Where %2 = %3").arg(persona.tabla, persona.clave, clave()));
            ado.setRecordSource(
                QStringLiteral("Select * From %1 Where %2 < 0").arg(persona.tabla, persona.clave));
            ado.Refresh();
        }
    } catch (const store::Fallo& fallo) {
        Common::MostrarMensaje(titulo, fallo.descripcion(), pantalla);
    } catch (const std::exception& e) {
        Common::MostrarMensaje(titulo, QString::fromUtf8(e.what()), pantalla);
    }
}

} // namespace credito
