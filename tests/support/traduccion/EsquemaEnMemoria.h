#pragma once

#include "store/sql/Dialecto.h"

#include <QString>
#include <QStringList>

struct sqlite3;

// The project's schema in an SQLite database in memory, opened straight through SQLite's library:
// SQLite's own parser says what a translated statement is, and the column types answer the
// translator's questions as the store's catalogue does.
class EsquemaEnMemoria : public store::sql::Catalogo {
public:
    explicit EsquemaEnMemoria(const QString& carpetaEsquema);
    ~EsquemaEnMemoria() override;
    EsquemaEnMemoria(const EsquemaEnMemoria&) = delete;
    EsquemaEnMemoria& operator=(const EsquemaEnMemoria&) = delete;

    struct Preparacion {
        bool preparada = false;
        QString error; // SQLite's message when it was not
        QString resto; // what SQLite left unread after the first statement
    };
    // Compiles the statement without running it.
    Preparacion preparar(const QString& sql) const;

    std::optional<QMetaType::Type> tipoColumna(const QString& tabla, const QString& columna) const override;
    QStringList columnas(const QString& tabla) const override;

private:
    sqlite3* bd_ = nullptr;
};
