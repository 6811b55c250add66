#include "SoloLectura.h"

#include <QFile>
#include <QFileInfo>
#include <unistd.h>

namespace basedatos {

bool admiteEscritura(const QString& ruta) {
    // access() asks the system itself: a read-only mount refuses even root, which permissions do not.
    return access(QFile::encodeName(ruta).constData(), W_OK) == 0;
}

QString carpetaExistente(const QString& ruta) {
    QString carpeta = QFileInfo(ruta).absolutePath();
    while (!QFileInfo(carpeta).isDir() && QFileInfo(carpeta).absolutePath() != carpeta)
        carpeta = QFileInfo(carpeta).absolutePath();
    return carpeta;
}

QString motivoDeSoloLectura(const QString& archivo) {
    const QString carpeta = QFileInfo(archivo).absolutePath();
    if (!admiteEscritura(carpeta)) return QStringLiteral("la carpeta %1 no admite escritura").arg(carpeta);
    if (!admiteEscritura(archivo)) return QStringLiteral("el archivo no admite escritura");
    return {};
}

} // namespace basedatos
