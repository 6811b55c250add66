#pragma once

#include "store/Conexion.h"
#include "store/Recordset.h"

#include <QElapsedTimer>
#include <algorithm>
#include <vector>

// What the benchmarks share: the median of a few runs, and the store's own time to open a statement
// and read every field of every row (what a search screen does with a whole view), in milliseconds.
inline double mediana(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

inline double recorrerConRecordset(store::Conexion& cn, const QString& consulta, long long& control) {
    QElapsedTimer t;
    t.start();
    store::Recordset rs;
    rs.Open(consulta, cn, store::adOpenStatic, store::adLockReadOnly);
    for (; !rs.Eof(); rs.MoveNext())
        for (int i = 0; i < rs.FieldCount(); ++i)
            control += rs.Fields(i).Value().isValid();
    return t.nsecsElapsed() / 1e6;
}
