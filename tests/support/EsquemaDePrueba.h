#pragma once

#include <QString>

// A few tables shaped like the system's, for the tests of the data store: keys given by the
// database, a defaulted flag, a date, an amount, a relation the database enforces.
inline QString esquemaDePrueba() {
    return QStringLiteral(R"(
CREATE TABLE Banco (BancoID INTEGER PRIMARY KEY AUTOINCREMENT, Nombre TEXT COLLATE NOCASE, Direccion TEXT);
CREATE TABLE Cliente (ClienteID INTEGER PRIMARY KEY AUTOINCREMENT, Nombres TEXT, Apellidos TEXT, NIT TEXT,
    FechaNacimiento DATE, Limite REAL, CodigoLetra TEXT, CodigoNumero INTEGER,
    Activo BOOLEAN NOT NULL DEFAULT 1);
CREATE TABLE Concepto (ConceptoID INTEGER PRIMARY KEY AUTOINCREMENT, Descripcion TEXT, Tipo INTEGER);
CREATE TABLE Recibo (ReciboID INTEGER PRIMARY KEY AUTOINCREMENT, NumeroRecibo INTEGER, Fecha DATE,
    BancoID INTEGER REFERENCES Banco(BancoID), Efectivo REAL);
)");
}
