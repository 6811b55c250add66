#pragma once

// What the delivery note's test programs share: the store's rows before each test, the screen opened
// from "Envíos" as the clerk opens it, and the clerk's gestures on it (the bar, a document's kind and
// number, F2 answered, a note found), made of the shared gestures of Gestos.h.
#include "EnPantalla.h"
#include "goods/frmNotaEnvio.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <memory>

inline const QDate kHoyEnvio(2026, 3, 10);
inline const QString kTituloEnvio = QStringLiteral("Notas de envío de mercadería");

// The rows every test starts from:
//   clients      1 ANA LUCÍA GONZÁLEZ, 2 PEDRO RAMÍREZ
//   articles     1 REFRIGERADORA RT38 BLANCO (5 in stock), 2 ESTUFA E4 GRIS (1), 3 TELEVISOR TV32 NEGRO (4),
//                the stock coming from one goods-in note
//   applications 41 (key 1): approved, ANA LUCÍA, home "5A CALLE 3-20 ZONA 1"; 1 refrigerator, 2 TVs
//                45 (key 2): approved, PEDRO; 1 refrigerator, 3 stoves, 1 TV: the stoves are short
//                46 (key 3): pending, PEDRO; 1 refrigerator: not yet sold
//   invoice      15 (key 1): PEDRO, 2 refrigerators
//   receipts     8 (key 1): the name JUAN PÉREZ, 1 TV
//                9 (key 2): the name LUIS MÉNDEZ, 1 refrigerator, already delivered by note 3 (key 1)
class EnvioEnPantalla : public EnPantalla<mercaderia::frmNotaEnvio> {
public:
    EnvioEnPantalla();

    // "Buscar", picking the note of this number.
    void buscarNota(const QString& numero);
    // "Agregar", the option of this kind clicked, the number typed and left.
    void nuevaPara(int tipo, const QString& numero);
    // F2 on the document's number: the number column of the rows the search listed, then the row of
    // this number picked (its close box when empty or not listed).
    QStringList f2(const QString& elegir = {});
    // The grid's rows, cells joined by "|".
    QStringList lineas();
};
