#pragma once

#include <QString>

// The project's schema (schema/sqlite/0*.sql, in name order) as one script.
QString scriptDelEsquema(const QString& carpeta);
