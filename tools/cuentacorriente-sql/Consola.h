#pragma once

#include <QStringList>
#include <QTextStream>

// Runs each statement on DSNBrenal and writes its result; stops at the first failure.
// Returns the process status: 0, or 1 after a failure.
int ejecutarSentencias(const QStringList& sentencias, QTextStream& salida, QTextStream& errores);
// The same for one statement per line of `entrada`; blank lines are skipped.
int ejecutarEntrada(QTextStream& entrada, QTextStream& salida, QTextStream& errores);
