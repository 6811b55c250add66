#pragma once

#include "store/Fallo.h"

#include <functional>

// The number of the Fallo an action raises; 0 when it raises none.
inline qint32 numeroDelFallo(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const store::Fallo& f) {
        return f.numero();
    }
    return 0;
}
