#include "EsquemaDelProyecto.h"

#include <QDir>
#include <QFile>

QString scriptDelEsquema(const QString& carpeta) {
    QString script;
    const QDir dir(carpeta);
    for (const QString& nombre : dir.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name)) {
        QFile f(dir.filePath(nombre));
        if (!f.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(f.fileName()));
        script += QString::fromUtf8(f.readAll());
    }
    if (script.isEmpty()) qFatal("no schema scripts in %s", qPrintable(carpeta));
    return script;
}
