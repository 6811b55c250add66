#pragma once

class BaseDePrueba;

// Fills a database built from the project's schema with a synthetic store of `solicitudes` credit
// applications and everything around them, in the proportions of a busy shop: per application two
// lines and three receipts of two lines; a delivery for one in three; a client for every two; one
// goods-in note of five lines per 20 applications, each half paid by a document. The catalogue grows
// with the store, one article for every 20 applications, so an article's history (five goods-in
// lines, some 40 units sold) is the same at any size.
void llenarTiendaSintetica(const BaseDePrueba& base, int solicitudes);

// The same store with `ingresos` goods-in notes (five lines of 50 units each, each half paid by a
// document) instead of one per 20 applications. The catalogue is still that of `solicitudes`
// applications: each article receives 5 x ingresos / articles goods-in lines.
void llenarTiendaSintetica(const BaseDePrueba& base, int solicitudes, int ingresos);

// The articles of a synthetic store of `solicitudes` applications, keys 1 to that number.
int articulosDeTiendaSintetica(int solicitudes);
