#include "shell/principal/Apariencia.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace shell {

void AplicarApariencia(const char* version) {
    QApplication::setApplicationName(QStringLiteral("Sistema de control de cuenta corriente"));
    QApplication::setApplicationVersion(QString::fromLatin1(version));
    const QString familia = QFontDatabase::families().contains(QStringLiteral("Liberation Sans"))
                                ? QStringLiteral("Liberation Sans")
                                : QStringLiteral("DejaVu Sans");
    QApplication::setFont(QFont(familia, 8));
}

} // namespace shell
